#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>

#include <iostream>
#include <string>

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
        QCoreApplication::processEvents();
        QStringList titles;
        const auto *tabs = dialog.findChild<QTabWidget *>();
        for (int i = 0; tabs && i < tabs->count(); ++i) {
            titles.append(tabs->tabText(i));
        }
        std::cout << titles.join(QLatin1Char('|')).toStdString() << std::endl;
    }
    return 0;
}
