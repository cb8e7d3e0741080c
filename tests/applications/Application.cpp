// SPDX-License-Identifier: Apache-2.0
#include "Application.h"

#include <QFile>
#include <QPainter>
#include <QPdfWriter>

namespace {
constexpr char translations[] = R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Labels</name>
    <message>
        <source>Cut the tape</source>
        <translation>Band schneiden</translation>
    </message>
</context>
</TS>
)";

bool writePDF(const QString &path)
{
    QPdfWriter writer(path);
    QPainter painter;
    if (!painter.begin(&writer)) {
        return false;
    }
    painter.fillRect(500, 500, 2000, 1000, Qt::black);
    return painter.end();
}

bool writeText(const QString &path, const QByteArray &text)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size();
}

/// The version of Qt whose core library the program names as one that it needs.
int linkedQt(const char *program)
{
    QFile file(QString::fromLocal8Bit(program));
    const QByteArray bytes = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    for (const int version : {6, 5}) {
        if (bytes.contains("libQt" + QByteArray::number(version) + "Core.so")) {
            return version;
        }
    }
    return 0;
}

std::vector<Application> table()
{
    return {
#ifndef KV_SANITIZED
        {"linguist", KV_QT6_TOOLS "/linguist", words("%1"), "labels.ts", "Ctrl+P", "Ctrl+Q", true},
        // It opens the dialog, but has no code yet that paints.
        {"assistant", KV_QT6_TOOLS "/assistant", {}, "", "Ctrl+P", "Ctrl+Q", false},
#ifdef KV_PRINTAPP_QT5
        {"qt5-linguist", KV_QT5_TOOLS "/linguist", words("%1"), "labels.ts", "Ctrl+P", "Ctrl+Q",
         true},
        // Debian 12 makes it with Qt 5, Debian 13 with Qt 6.
        {"qpdfview", "/usr/bin/qpdfview", words("%1"), "labels.pdf", "Ctrl+P", "Ctrl+Q", true},
#endif
#endif
        {"printapp-exec", KV_PRINTAPP, words("exec --own-tab"), "", "Ctrl+P", "Ctrl+Q", true},
        {"printapp-open", KV_PRINTAPP, words("open --keep"), "", "Ctrl+P", "Ctrl+Q", true},
        {"printapp-show", KV_PRINTAPP, words("show --subclass"), "", "Ctrl+P", "Ctrl+Q", true},
#ifdef KV_PRINTAPP_QT5
        {"printapp5-exec", KV_PRINTAPP_QT5, words("exec --keep --subclass"), "", "Ctrl+P", "Ctrl+Q",
         true},
        {"printapp5-show", KV_PRINTAPP_QT5, words("show --own-tab"), "", "Ctrl+P", "Ctrl+Q", true},
#endif
    };
}
} // namespace

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

std::vector<Application> Application::all()
{
    const QByteArray chosen = qgetenv("KV_APPLICATION");
    std::vector<Application> applications;
    for (Application &application : table()) {
        if (QByteArray(application.name).startsWith(chosen)) {
            application.qt = linkedQt(application.program);
            applications.push_back(application);
        }
    }
    return applications;
}

QString Application::whatIsMissing(const std::vector<Application> &applications)
{
    for (const Application &application : applications) {
        if (application.qt == 0) {
            return u"%1 is no program with Qt"_s.arg(QLatin1String(application.program));
        }
    }
    return applications.empty() ? u"no application"_s : QString();
}

QString Application::writeDocument(const QString &folder) const
{
    const QString path = folder + QLatin1Char('/') + QLatin1String(document);
    const bool written =
        path.endsWith(QLatin1String(".pdf")) ? writePDF(path) : writeText(path, translations);
    return written ? path : QString();
}
