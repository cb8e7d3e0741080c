// SPDX-License-Identifier: Apache-2.0
#include "bench/GtkSurroundings.h"

#include "tests/gtk/GtkDialog.h"

#include <QDir>

#include <stdexcept>

namespace {
/// GTK 3 reads as many settings, and either GTK looks for modules in as many folders.
void switchOff(const QString &folder)
{
    QFile settings(QDir(folder).filePath(u"gtk-3.0/settings.ini"_s));
    if (!settings.open(QIODevice::WriteOnly) ||
        settings.write("[Settings]\ngtk-print-backends=file,cups\n") < 0) {
        throw std::runtime_error(settings.errorString().toStdString());
    }
}
} // namespace

GtkSurroundings::GtkSurroundings(QProcessEnvironment display)
    : mDisplay(std::move(display))
{
    mDisplay.insert(u"NO_AT_BRIDGE"_s, u"1"_s);
    mDisplay.insert(u"GTK_A11Y"_s, u"none"_s);
}

QProcessEnvironment GtkSurroundings::environment(bool isExtended) const
{
    const QString folder = isExtended ? mOn.path() : mOff.path();
    QProcessEnvironment environment = mDisplay;
    for (const QString &variable : gtkVariables(folder)) {
        environment.insert(variable.section(u'=', 0, 0), variable.section(u'=', 1));
    }
    if (!isExtended) {
        switchOff(folder);
        environment.insert(u"GTK_PATH"_s, u"%1/gtk-3.0:%1/gtk-4.0"_s.arg(folder));
    }
    return environment;
}
