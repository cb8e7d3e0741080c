// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QDeadlineTimer>
#include <QPrintDialog>
#include <QPrintEngine>
#include <QPrinter>
#include <QTabWidget>
#include <QTimer>

#include <algorithm>
#include <iostream>
#include <string>
#include <utility>

namespace {
constexpr int longestWaitMs = 10'000;
/// How long a dialog that is not painted stays without its extension.
constexpr int longestUnpaintedMs = 500;

/// What extends dialogs in the dialog; null when nothing does.
const QObject *extensionOf(const QObject &dialog)
{
    const QObjectList &children = dialog.children();
    const auto found = std::find_if(children.begin(), children.end(), [](const QObject *child) {
        return child->inherits("PrintDialogAttachment");
    });
    return found == children.end() ? nullptr : *found;
}

/// Lets time pass until something is so.
template <typename Condition>
void await(Condition isSo)
{
    QDeadlineTimer patience(longestWaitMs);
    do {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    } while (!isSo() && !patience.hasExpired());
}

/// The printer object of a dialog, which has to outlive it.
struct OwnPrinter
{
    QPrinter ownPrinter;
};

/// A print dialog for a printer, and what its application sees of it.
class Dialog : private OwnPrinter, public QPrintDialog
{
public:
    explicit Dialog(const QString &name)
        : QPrintDialog(&ownPrinter)
    {
        ownPrinter.setPrinterName(name);
        // As many applications do.
        connect(this, &QDialog::accepted, this, [this] { mOptions = handedOver(); });
    }

    /// Lets time pass until the dialog has been seen, and the scheduler has told what its printer
    /// has to whatever extends the dialog behind the application's back.
    void awaitSight()
    {
        await([this] { return mIsPainted; });
        QCoreApplication::processEvents();
        awaitExtension();
    }

    void awaitExtension()
    {
        await([this] {
            const QObject *extension = extensionOf(*this);
            return !extension || !extension->property("waiting").toBool();
        });
    }

    QStringList tabs() const
    {
        QStringList titles;
        const auto *tabs = findChild<QTabWidget *>();
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            titles.append(tabs->tabText(i));
        }
        return titles;
    }

    /// Whether it was extended already when it was painted for the first time.
    bool isExtendedEarly() const { return mIsExtendedEarly; }
    /// The keywords and values of the job's options when the dialog told that it was accepted.
    const QStringList &options() const { return mOptions; }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPrintDialog::paintEvent(event);
        if (!std::exchange(mIsPainted, true)) {
            mIsExtendedEarly = extensionOf(*this);
        }
    }

private:
    QStringList handedOver() const
    {
        constexpr auto cupsOptions = QPrintEngine::PrintEnginePropertyKey(0xfe00);
        return ownPrinter.printEngine()->property(cupsOptions).toStringList();
    }

    QStringList mOptions;
    bool mIsPainted = false;
    bool mIsExtendedEarly = false;
};

QStringList tabs(const QString &printer)
{
    Dialog dialog(printer);
    dialog.show();
    dialog.awaitSight();
    return dialog.tabs();
}

QStringList tabsUnpainted(const QString &printer)
{
    Dialog dialog(printer);
    dialog.setUpdatesEnabled(false);
    dialog.show();
    await([&dialog] { return extensionOf(dialog); });
    dialog.awaitExtension();
    return dialog.tabs();
}

QStringList order(const QString &printer)
{
    Dialog dialog(printer);
    dialog.show();
    dialog.awaitSight();
    return {dialog.isExtendedEarly() ? u"extended first"_s : u"seen first"_s};
}

QStringList acceptedOnceOpen(const QString &printer)
{
    Dialog dialog(printer);
    dialog.open();
    dialog.accept();
    return dialog.options();
}

QStringList acceptedInExec(const QString &printer)
{
    Dialog dialog(printer);
    QTimer::singleShot(0, &dialog, &QDialog::accept);
    dialog.exec();
    return dialog.options();
}

QStringList acceptedWhenShownAgain(const QString &printer)
{
    Dialog dialog(printer);
    dialog.show();
    dialog.hide();
    dialog.show();
    dialog.accept();
    return dialog.options();
}

/// The tabs of a dialog behind others that were deleted early.
QStringList tabsBehindDeleted(const QString &printer)
{
    for (const bool isHidden : {false, true}) {
        Dialog dialog(printer);
        dialog.show();
        dialog.setVisible(!isHidden);
    }
    // Long enough for whatever was still to happen to them.
    const QDeadlineTimer time(longestUnpaintedMs + 100);
    await([&time] { return time.hasExpired(); });
    return tabs(printer);
}

/// What the application is asked to do with a new dialog for a printer, and what it answers.
struct Way
{
    const char *name;
    QStringList (*run)(const QString &printer);
};

constexpr Way ways[] = {
    {"tabs", tabs},
    {"tabs unpainted", tabsUnpainted},
    {"tabs behind deleted", tabsBehindDeleted},
    {"order", order},
    {"accepted once open", acceptedOnceOpen},
    {"accepted in exec", acceptedInExec},
    {"accepted when shown again", acceptedWhenShownAgain},
};
} // namespace

/// For every line of its input, "WAY|PRINTER", shows a print dialog in that way, and writes what it
/// has seen in a line.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    std::string line;
    while (std::getline(std::cin, line)) {
        const QStringList request = QString::fromStdString(line).split(QLatin1Char('|'));
        for (const Way &way : ways) {
            if (request.first() == QLatin1String(way.name)) {
                std::cout << way.run(request.last()).join(QLatin1Char('|')).toStdString()
                          << std::endl;
            }
        }
    }
    return 0;
}
