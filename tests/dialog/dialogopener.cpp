#include <QApplication>
#include <QDeadlineTimer>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>

#include <algorithm>
#include <iostream>
#include <string>

namespace {
constexpr int longestWaitMs = 10'000;

bool isWaiting(const QObject &dialog)
{
    const QObjectList &children = dialog.children();
    return std::any_of(children.begin(), children.end(),
                       [](const QObject *child) { return child->property("waiting").toBool(); });
}
} // namespace

/// For every line of its input shows a print dialog for the printer of that name, and writes the
/// titles of the dialog's tabs in a line.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    std::string name;
    while (std::getline(std::cin, name)) {
        QPrinter printer;
        printer.setPrinterName(QString::fromStdString(name));
        QPrintDialog dialog(&printer);
        dialog.show();
        // What extends dialogs asks the scheduler behind the application's back.
        QDeadlineTimer patience(longestWaitMs);
        do {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        } while (isWaiting(dialog) && !patience.hasExpired());
        QStringList titles;
        const auto *tabs = dialog.findChild<QTabWidget *>();
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            titles.append(tabs->tabText(i));
        }
        std::cout << titles.join(QLatin1Char('|')).toStdString() << std::endl;
    }
    return 0;
}
