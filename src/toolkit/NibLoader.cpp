#include "toolkit/NibLoader.h"

#include "printcore/FileAccess.h"
#include "textinput/PDETextField.h"
#include "toolkit/CheckBox.h"
#include "toolkit/PopUpButton.h"
#include "toolkit/Stepper.h"
#include "toolkit/ViewGeometry.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUiLoader>

namespace {
template <typename Widget>
QWidget *make(QWidget *parent)
{
    return new Widget(parent);
}

struct CustomWidget
{
    QLatin1String className;
    QWidget *(*make)(QWidget *parent);
};

const CustomWidget customWidgets[] = {
    {QLatin1String("CheckBox"), make<CheckBox>},
    {QLatin1String("PDETextField13_v400_"), make<PDETextField13_v400_>},
    {QLatin1String("PopUpButton"), make<PopUpButton>},
    {QLatin1String("Stepper"), make<Stepper>},
};

class Loader : public QUiLoader
{
public:
    QWidget *createWidget(const QString &className, QWidget *parent, const QString &name) override
    {
        for (const CustomWidget &custom : customWidgets) {
            if (className == custom.className) {
                QWidget *widget = custom.make(parent);
                widget->setObjectName(name);
                return widget;
            }
        }
        return QUiLoader::createWidget(className, parent, name);
    }
};

/// While it lives, Qt finds no plug-ins.
class PlugInsHidden
{
public:
    PlugInsHidden() { QCoreApplication::setLibraryPaths({}); }
    ~PlugInsHidden() { QCoreApplication::setLibraryPaths(mPaths); }
    PlugInsHidden(const PlugInsHidden &) = delete;
    PlugInsHidden &operator=(const PlugInsHidden &) = delete;

private:
    QStringList mPaths = QCoreApplication::libraryPaths();
};

/// A QUiLoader loads all plug-ins of Qt Designer that it finds as it is made.
Loader makeLoader()
{
    const PlugInsHidden hidden;
    return {};
}

void report(QString *error, const QString &path, const QString &reason)
{
    if (error) {
        *error = QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), reason);
    }
}
} // namespace

std::unique_ptr<QWidget> NibLoader::load(const QString &path, QString *error)
{
    const QString fault = accessFault(path);
    QFile file(path);
    if (!fault.isNull() || !file.open(QIODevice::ReadOnly)) {
        report(error, path, fault.isNull() ? file.errorString() : fault);
        return nullptr;
    }
    Loader loader = makeLoader();
    loader.setWorkingDirectory(QFileInfo(path).absoluteDir());
    std::unique_ptr<QWidget> top(loader.load(&file));
    if (!top) {
        report(error, path, loader.errorString());
        return nullptr;
    }
    fitToFont(top.get());
    return top;
}
