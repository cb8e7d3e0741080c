// SPDX-License-Identifier: Apache-2.0
#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QTextEdit>

/// An application with little more than a window.
int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    QMainWindow window;
    window.menuBar()->addMenu(QStringLiteral("File"))->addAction(QStringLiteral("Quit"));
    window.setCentralWidget(new QTextEdit);
    window.show();
    return QApplication::exec();
}
