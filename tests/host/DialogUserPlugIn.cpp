// SPDX-License-Identifier: Apache-2.0
#include "demo/DialogDriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QGenericPlugin>
#include <QIcon>
#include <QMessageBox>
#include <QPrintDialog>
#include <QTimer>

#include <cstdio>
#include <utility>

namespace {
constexpr int lookMs = 20;
constexpr int mostTries = 500;

/// Writes what stands on the dialog's buttons to standard output, one a line.
void tellButtons(const QPrintDialog &dialog)
{
    const auto *box = dialog.findChild<QDialogButtonBox *>();
    const auto buttons = box->buttons();
    for (const QAbstractButton *button : buttons) {
        std::puts(qPrintable(button->text().remove(QLatin1Char('&'))));
    }
}

/// Writes the name of the desktop entry and the sizes of the window's icon to standard output.
void tellWindow(const QPrintDialog &dialog)
{
    std::puts(qPrintable(QGuiApplication::desktopFileName()));
    const auto sizes = dialog.windowIcon().availableSizes();
    for (const QSize &size : sizes) {
        std::printf("%dx%d\n", size.width(), size.height());
    }
}

/// Ticks half cut in the print dialog of its process, and accepts or cancels it; or tells of it.
/// Writes what an alert says to standard output, and closes it.
class DialogUser : public QObject
{
    Q_OBJECT

public:
    explicit DialogUser(QString deed)
        : mDeed(std::move(deed))
    {
        connect(&mTimer, &QTimer::timeout, this, &DialogUser::look);
        mTimer.start(lookMs);
    }

private:
    void look()
    {
        if (auto *alert = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            std::puts(qPrintable(alert->text()));
            alert->accept();
        }
        auto *dialog = qobject_cast<QPrintDialog *>(QApplication::activeModalWidget());
        if (!dialog) {
            return;
        }
        mTimer.stop();
        DialogDriver user(*dialog);
        if (mDeed.startsWith(QLatin1String("tell"))) {
            const bool isOfWindow = mDeed == QLatin1String("tellwindow");
            isOfWindow ? tellWindow(*dialog) : tellButtons(*dialog);
            user.cancel();
            return;
        }
        const bool accepts = mDeed == QLatin1String("accept");
        if (user.showOptions() && user.showTab(u"Cut Options"_s) &&
            user.click(u"mHalfCutChkBx"_s)) {
            accepts ? user.print() : user.cancel();
        } else if (++mTries < mostTries) {
            // The panel is not there yet.
            mTimer.start(lookMs);
        } else {
            QApplication::exit(EXIT_FAILURE);
        }
    }

    QTimer mTimer;
    QString mDeed;
    int mTries = 0;
};
} // namespace

/// Works the print dialog of a process that is started with
/// QT_QPA_GENERIC_PLUGINS=dialoguser:accept, dialoguser:cancel, dialoguser:tell or
/// dialoguser:tellwindow.
class DialogUserPlugIn : public QGenericPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "DialogUserPlugIn.json")

public:
    QObject *create(const QString &, const QString &deed) override { return new DialogUser(deed); }
};

#include "DialogUserPlugIn.moc"
