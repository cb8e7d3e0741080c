// SPDX-License-Identifier: Apache-2.0
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>
#include <QThread>

#include <algorithm>
#include <chrono>
#include <iostream>
#include <memory>
#include <optional>
#include <string>

namespace {
using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;
using Seconds = std::chrono::duration<double>;

/// How long nothing has to happen before what was done is over.
constexpr auto settledAfter = 60ms;

/// An application that knows when a print dialog of its own has been on the screen first.
class WatchedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && receiver->inherits("QPrintDialog")) {
            mIsPainting = true;
        }
        ++mDepth;
        const bool answer = QApplication::notify(receiver, event);
        --mDepth;
        // The event that had the whole window painted has handed its picture on.
        if (mDepth == 0 && std::exchange(mIsPainting, false) && !mSeen) {
            mSeen = Clock::now();
        }
        return answer;
    }

    void forgetSight() { mSeen.reset(); }
    const std::optional<Clock::time_point> &seen() const { return mSeen; }

private:
    std::optional<Clock::time_point> mSeen;
    int mDepth = 0;
    bool mIsPainting = false;
};

/// A print dialog and its user.
class DialogUser
{
public:
    explicit DialogUser(const QString &printer)
        : mName(printer)
    {
    }

    void make()
    {
        mDialog.reset();
        mPrinter = std::make_unique<QPrinter>();
        mPrinter->setPrinterName(mName);
        mDialog = std::make_unique<QPrintDialog>(mPrinter.get());
    }

    void show() { mDialog->show(); }

    /// Unfolds the tabs, and turns to the first that is not Qt's, if there is one.
    void turn()
    {
        const auto *box = mDialog->findChild<QDialogButtonBox *>();
        for (QAbstractButton *button : box->buttons()) {
            const auto role = box->buttonRole(button);
            if (role == QDialogButtonBox::ResetRole || role == QDialogButtonBox::ActionRole) {
                button->click();
            }
        }
        auto *tabs = mDialog->findChild<QTabWidget *>();
        tabs->setCurrentIndex(std::min(tabs->count() - 1, 2));
    }

    void pickLast()
    {
        auto *menu = mDialog->findChild<QComboBox *>(QStringLiteral("printers"));
        menu->setCurrentIndex(menu->findText(QStringLiteral("label")));
        Q_EMIT menu->activated(menu->currentIndex());
    }

    void print() { mDialog->accept(); }
    void cancel() { mDialog->reject(); }

    /// Whether something in the dialog still waits for the scheduler.
    bool isWaiting() const
    {
        const QObjectList &children = mDialog->children();
        return std::any_of(children.begin(), children.end(), [](const QObject *child) {
            return child->property("waiting").toBool();
        });
    }

private:
    QString mName;
    std::unique_ptr<QPrinter> mPrinter;
    std::unique_ptr<QPrintDialog> mDialog;
};

struct Deed
{
    const char *name;
    void (DialogUser::*run)();
    bool isSeen;
};

constexpr Deed deeds[] = {
    {"make", &DialogUser::make, false},     {"show", &DialogUser::show, true},
    {"turn", &DialogUser::turn, false},     {"pick", &DialogUser::pickLast, false},
    {"cancel", &DialogUser::cancel, false}, {"print", &DialogUser::print, false},
};

template <typename Function>
Clock::duration timeOf(Function function)
{
    const auto start = Clock::now();
    function();
    return Clock::now() - start;
}

/// Does it, and writes the seconds until the dialog was seen, and the longest time for which the
/// application did not answer.
void run(const Deed &deed, DialogUser &user, WatchedApplication &application,
         Clock::duration patience)
{
    application.forgetSight();
    const auto start = Clock::now();
    auto longest = timeOf([&] { (user.*deed.run)(); });
    auto lastBusy = Clock::now();
    while (deed.isSeen && !application.seen()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        lastBusy = Clock::now();
    }
    while (Clock::now() - lastBusy < settledAfter ||
           (user.isWaiting() && Clock::now() - start < patience)) {
        const auto busy = timeOf([] { QCoreApplication::processEvents(); });
        longest = std::max(longest, busy);
        lastBusy = busy > 1ms ? Clock::now() : lastBusy;
        QThread::usleep(200);
    }
    const Seconds untilSeen = deed.isSeen ? *application.seen() - start : Clock::duration();
    std::cout << untilSeen.count() << ' ' << Seconds(longest).count() << std::endl;
}
} // namespace

/// Does with a print dialog for the printer, the first argument, what the lines of its input say.
/// The second argument is how many milliseconds it waits for what extends the dialog.
int main(int argc, char **argv)
{
    WatchedApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    DialogUser user(arguments.value(1));
    const std::chrono::milliseconds patience(arguments.value(2).toInt());
    std::string line;
    while (std::getline(std::cin, line)) {
        for (const Deed &deed : deeds) {
            if (line == deed.name) {
                run(deed, user, application, patience);
            }
        }
    }
    return 0;
}
