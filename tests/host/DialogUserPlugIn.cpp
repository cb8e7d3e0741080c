#include "demo/DialogDriver.h"

#include <QApplication>
#include <QGenericPlugin>
#include <QPrintDialog>
#include <QTimer>

namespace {
constexpr int lookMs = 20;

/// Ticks half cut in the print dialog of its process, and accepts or cancels it.
class DialogUser : public QObject
{
    Q_OBJECT

public:
    explicit DialogUser(bool accepts)
        : mAccepts(accepts)
    {
        connect(&mTimer, &QTimer::timeout, this, &DialogUser::look);
        mTimer.start(lookMs);
    }

private:
    void look()
    {
        auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            return;
        }
        mTimer.stop();
        DialogDriver user(*dialog);
        const bool ticked = user.showOptions() && user.showTab(QStringLiteral("Cut Options")) &&
                            user.click(QStringLiteral("mHalfCutChkBx"));
        if (!ticked || !(mAccepts ? user.print() : user.cancel())) {
            QApplication::exit(EXIT_FAILURE);
        }
    }

    QTimer mTimer;
    bool mAccepts;
};
} // namespace

/// Works the print dialog of a process that is started with
/// QT_QPA_GENERIC_PLUGINS=dialoguser:accept or dialoguser:cancel.
class DialogUserPlugIn : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "DialogUserPlugIn.json")

public:
    QObject *create(const QString &, const QString &deed) override
    {
        return new DialogUser(deed == QLatin1String("accept"));
    }
};

#include "DialogUserPlugIn.moc"
