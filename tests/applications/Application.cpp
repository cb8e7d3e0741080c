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

QStringList words(const char *line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

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

std::vector<Application> table()
{
    return {
#ifndef KV_SANITIZED
        {"linguist", 6, KV_QT6_TOOLS "/linguist", words("%1"), "labels.ts", "Ctrl+P", "Ctrl+Q",
         true},
        // It opens the dialog, but has no code yet that paints.
        {"assistant", 6, KV_QT6_TOOLS "/assistant", {}, "", "Ctrl+P", "Ctrl+Q", false},
#ifdef KV_PRINTAPP_QT5
        {"qpdfview", 5, "/usr/bin/qpdfview", words("%1"), "labels.pdf", "Ctrl+P", "Ctrl+Q", true},
#endif
#endif
        {"printapp-exec", 6, KV_PRINTAPP, words("exec --own-tab"), "", "Ctrl+P", "Ctrl+Q", true},
        {"printapp-open", 6, KV_PRINTAPP, words("open --keep"), "", "Ctrl+P", "Ctrl+Q", true},
        {"printapp-show", 6, KV_PRINTAPP, words("show --subclass"), "", "Ctrl+P", "Ctrl+Q", true},
#ifdef KV_PRINTAPP_QT5
        {"printapp5-exec", 5, KV_PRINTAPP_QT5, words("exec --keep --subclass"), "", "Ctrl+P",
         "Ctrl+Q", true},
        {"printapp5-show", 5, KV_PRINTAPP_QT5, words("show --own-tab"), "", "Ctrl+P", "Ctrl+Q",
         true},
#endif
    };
}
} // namespace

std::vector<Application> Application::all()
{
    const QByteArray chosen = qgetenv("KV_APPLICATION");
    std::vector<Application> applications;
    for (const Application &application : table()) {
        if (QByteArray(application.name).startsWith(chosen)) {
            applications.push_back(application);
        }
    }
    return applications;
}

QString Application::writeDocument(const QString &folder) const
{
    const QString path = folder + QLatin1Char('/') + QLatin1String(document);
    const bool written =
        path.endsWith(QLatin1String(".pdf")) ? writePDF(path) : writeText(path, translations);
    return written ? path : QString();
}
