#include <QApplication>
#include <QFile>
#include <QMainWindow>
#include <QMenuBar>
#include <QPaintEvent>
#include <QTextEdit>
#include <QTimer>

#include <cstdio>

namespace {
/// The main window of an application that leaves as soon as it has been seen.
class Window : public QMainWindow
{
public:
    Window()
    {
        menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Quit"));
        setCentralWidget(new QTextEdit);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QMainWindow::paintEvent(event);
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    }
};

void printMappedFiles()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (maps.open(QIODevice::ReadOnly)) {
        std::fputs(maps.readAll().constData(), stdout);
    }
}
} // namespace

/// Starts as any application does, and ends. Prints the files that it has mapped when it is given
/// an argument.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    Window window;
    window.show();
    const int status = QApplication::exec();
    if (argc > 1) {
        printMappedFiles();
    }
    return status;
}
