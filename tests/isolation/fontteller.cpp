// SPDX-License-Identifier: Apache-2.0
#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>

#include <cstdio>

/// Prints the default font and its size in points, and the families of fonts, a line each.
int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    const QFontInfo font((QFont()));
    std::printf("%s %d\n", qPrintable(font.family()), font.pointSize());
    std::puts(qPrintable(QFontDatabase::families().join(u'\n')));
    return 0;
}
