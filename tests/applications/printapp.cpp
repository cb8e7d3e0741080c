// SPDX-License-Identifier: Apache-2.0
#include "PrintWindow.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    PrintWindow window(QApplication::arguments().mid(1));
    window.show();
    return QApplication::exec();
}
