// SPDX-License-Identifier: Apache-2.0
#include "PictureNames.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>
#include <QXmlStreamReader>

namespace {
const QString resources = QStringLiteral(KV_BUNDLE_DIR "/Contents/Resources/");

QString form()
{
    QFile file(resources + u"OptionPDE.ui"_s);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The form's text from one widget's name to the end of its own properties and items.
QString widget(const QString &name)
{
    const QString text = form();
    const qsizetype start = text.indexOf(u"name=\"%1\""_s.arg(name));
    return start < 0 ? QString() : text.mid(start, text.indexOf(u"</widget>", start) - start);
}

QSize firstSize(const QString &text)
{
    static const QRegularExpression size(u"<width>(\\d+)</width>\\s*<height>(\\d+)</height>"_s);
    const QRegularExpressionMatch match = size.match(text);
    return {match.captured(1).toInt(), match.captured(2).toInt()};
}

QRegularExpressionMatch partsOf(const QString &name)
{
    static const QRegularExpression parts(u"^([A-Za-z]+?)((?:On|Off)+)$"_s);
    return parts.match(name);
}

QString word(bool on)
{
    return on ? u"On"_s : u"Off"_s;
}
} // namespace

QList<bool> PictureNames::switchesOf(const QString &name)
{
    QList<bool> switches;
    static const QRegularExpression state(u"On|Off"_s);
    auto states = state.globalMatch(partsOf(name).captured(2));
    while (states.hasNext()) {
        switches.append(states.next().captured() == u"On");
    }
    return switches;
}

QString PictureNames::toggled(const QString &name, qsizetype which)
{
    QList<bool> switches = switchesOf(name);
    switches[which] = !switches[which];
    QString other = partsOf(name).captured(1);
    for (const bool on : std::as_const(switches)) {
        other += word(on);
    }
    return other;
}

QStringList PictureNames::previews()
{
    QStringList names;
    for (const bool mirror : {false, true}) {
        for (const QString &cuts : {u"OffOff"_s, u"OffOn"_s, u"OnOff"_s}) {
            names.append(u"EveryEndMirror"_s + cuts + word(mirror));
        }
        names.append(u"SPMROn"_s + word(mirror));
    }
    for (int i = 0; i < 16; ++i) {
        names.append(u"AHCM"_s + word(i & 8) + word(i & 4) + word(i & 2) + word(i & 1));
    }
    for (int i = 0; i < 4; ++i) {
        names.append(u"CTMR"_s + word(i & 2) + word(i & 1) + word(false));
    }
    return names;
}

QStringList PictureNames::presets()
{
    QStringList names;
    static const QRegularExpression item(
        u"<item>\\s*<property name=\"text\">\\s*<string[^>]*>([A-Za-z]+)</string>"_s);
    auto items = item.globalMatch(widget(u"mOptionPopUpButton"_s));
    while (items.hasNext()) {
        names.append(u"Preset"_s + items.next().captured(1));
    }
    return names;
}

QString PictureNames::path(const QString &name, const char *mark)
{
    return resources + name + QLatin1String(mark) + u".png"_s;
}

QSize PictureNames::previewFrame()
{
    return firstSize(widget(u"mOptionDummyView"_s));
}

QSize PictureNames::iconFrame()
{
    const QString popUp = widget(u"mOptionPopUpButton"_s);
    return firstSize(popUp.mid(popUp.indexOf(u"iconSize")));
}

void PictureNames::addRows(const QStringList &names)
{
    QTest::addColumn<QString>("name");
    for (const QString &name : names) {
        QTest::newRow(qPrintable(name)) << name;
    }
}
