// SPDX-License-Identifier: Apache-2.0
#include "ppd/PPD.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

#include <array>
#include <memory>
#include <span>

namespace {
constexpr double pointsPerMillimetre = 72.0 / 25.4;

struct PPDCloser
{
    void operator()(ppd_file_t *ppd) const { ppdClose(ppd); }
};
using PPD = std::unique_ptr<ppd_file_t, PPDCloser>;

struct SamplePrinter
{
    const char *name;
    const char *tapeType;
    const char *autoCutObjHidden;
    const char *autoTapeCut;
    QStringList options;
    QStringList prefixes;
};

const QStringList everyOption = {
    u"KvCutLabel"_s,    u"KvCutAtEnd"_s,       u"KvMirror"_s,
    u"KvAutoTapeCut"_s, u"KvHalfCut"_s,        u"KvChainPrint"_s,
    u"KvSpecialTape"_s, u"KvRemoveBlkSpace"_s, u"KvCutMark"_s,
};

const QStringList everyText = {
    u"Cut Every"_s,      u"Cut at End"_s,   u"Mirror Printing"_s,    u"Auto Cut"_s, u"Half Cut"_s,
    u"Chain Printing"_s, u"Special Tape"_s, u"Remove Blank Space"_s, u"Cut Mark"_s,
};

const QStringList everyPrefix = {
    u"DC"_s, u"AV"_s, u"FL"_s, u"C_"_s, u"HS"_s, u"Custom"_s,
};

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

const std::array samplePrinters = {
    SamplePrinter{"korvane-label", "RV", "True", "ON",
                  words("KvCutLabel KvCutAtEnd KvMirror KvAutoTapeCut"), words("DC C_")},
    SamplePrinter{"korvane-tape", "MQ", "False", "ON",
                  words("KvAutoTapeCut KvHalfCut KvChainPrint KvSpecialTape KvMirror "
                        "KvRemoveBlkSpace"),
                  words("FL HS Custom")},
    SamplePrinter{"korvane-tape-follow", "MQ", "True", "OFF",
                  words("KvCutLabel KvAutoTapeCut KvHalfCut KvChainPrint KvMirror"),
                  words("HS AV")},
    SamplePrinter{"korvane-tape-mark", "MQ", "False", "OFF",
                  words("KvCutMark KvChainPrint KvAutoTapeCut KvMirror"), words("FL")},
    SamplePrinter{"korvane-tape-all", "MQ", "False", "OFF", everyOption, everyPrefix},
    SamplePrinter{"korvane-plain", "MQ", "True", "", {}, {}},
};

QString ppdPath(const QString &printer)
{
    return QStringLiteral(KV_PPD_DIR "/%1.ppd").arg(printer);
}

QStringList choices(const ppd_option_t &option)
{
    QStringList keywords;
    for (const ppd_choice_t &choice :
         std::span(option.choices, static_cast<size_t>(option.num_choices))) {
        keywords.append(QString::fromUtf8(choice.choice));
    }
    return keywords;
}

QStringList expectedChoices(const QString &keyword)
{
    if (keyword != u"KvCutLabel"_s) {
        return words("OFF ON");
    }
    QStringList counts;
    for (int count = 1; count <= 99; ++count) {
        counts.append(QString::number(count));
    }
    return counts;
}

QStringList optionsOfGroup(ppd_file_t &ppd, const char *name)
{
    QStringList keywords;
    for (const ppd_group_t &group : std::span(ppd.groups, static_cast<size_t>(ppd.num_groups))) {
        if (qstrcmp(group.name, name) != 0) {
            continue;
        }
        for (const ppd_option_t &option :
             std::span(group.options, static_cast<size_t>(group.num_options))) {
            keywords.append(QString::fromUtf8(option.keyword));
        }
    }
    return keywords;
}

QString prefixOf(const QString &media)
{
    for (const QString &prefix : everyPrefix) {
        if (media.startsWith(prefix)) {
            return prefix;
        }
    }
    return {};
}

QSet<QString> toSet(const QStringList &list)
{
    return {list.begin(), list.end()};
}

void addPrinters()
{
    const TestTable<const SamplePrinter *> table("printer");
    for (const SamplePrinter &printer : samplePrinters) {
        table.add(printer.name, &printer);
    }
}
} // namespace

class tst_drivers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void folderHoldsThePrintersOnly();
    void conformance_data() { addPrinters(); }
    void conformance();
    void attributes_data() { addPrinters(); }
    void attributes();
    void cutOptions_data() { addPrinters(); }
    void cutOptions();
    void plainOption();
    void mediaPrefixes_data() { addPrinters(); }
    void mediaPrefixes();
    void mediaDimensions_data() { addPrinters(); }
    void mediaDimensions();
};

#define OPEN_PRINTER()                                                                             \
    QFETCH(const SamplePrinter *, printer);                                                        \
    const QString path = ppdPath(QString::fromLatin1(printer->name));                              \
    const PPD ppd(ppdOpenFile(QFile::encodeName(path).constData()));                               \
    QVERIFY2(ppd, qPrintable(path))

void tst_drivers::folderHoldsThePrintersOnly()
{
    QStringList expected;
    for (const SamplePrinter &printer : samplePrinters) {
        expected.append(QString::fromLatin1(printer.name) + u".ppd"_s);
    }
    expected.sort();
    QCOMPARE(QDir(QStringLiteral(KV_PPD_DIR)).entryList(QDir::Files, QDir::Name), expected);
}

void tst_drivers::conformance()
{
    QFETCH(const SamplePrinter *, printer);
    QProcess check;
    check.start(u"cupstestppd"_s, {u"-v"_s, ppdPath(QString::fromLatin1(printer->name))});
    QVERIFY(check.waitForFinished());
    const QByteArray output = check.readAll();
    QCOMPARE(check.exitStatus(), QProcess::NormalExit);
    QVERIFY2(check.exitCode() == 0, output.constData());
    QVERIFY2(output.contains("NO ERRORS FOUND"), output.constData());
}

void tst_drivers::attributes()
{
    OPEN_PRINTER();
    const auto value = [&](const char *name) {
        const ppd_attr_t *attribute = ppdFindAttr(ppd.get(), name, nullptr);
        return attribute ? QByteArray(attribute->value) : QByteArray();
    };
    QCOMPARE(value("KvTapeType"), QByteArray(printer->tapeType));
    QCOMPARE(value("KvAutoCutObjHidden"), QByteArray(printer->autoCutObjHidden));
    QCOMPARE(value("FileVersion"), QByteArray("1.0"));
    QCOMPARE(QByteArray(ppd->manufacturer), QByteArray("Korvane"));
    QVERIFY(QByteArray(ppd->modelname).startsWith("Korvane "));
    QCOMPARE(ppd->num_filters, 1);
    QCOMPARE(QByteArray(ppd->filters[0]), QByteArray("application/vnd.cups-pdf 0 -"));
}

void tst_drivers::cutOptions()
{
    OPEN_PRINTER();
    QCOMPARE(toSet(optionsOfGroup(*ppd, "KvCutOptions")), toSet(printer->options));
    for (qsizetype i = 0; i < everyOption.size(); ++i) {
        const QString &keyword = everyOption[i];
        const ppd_option_t *option = ppdFindOption(ppd.get(), keyword.toUtf8().constData());
        QCOMPARE(option != nullptr, printer->options.contains(keyword));
        if (!option) {
            continue;
        }
        QCOMPARE(option->ui, PPD_UI_PICKONE);
        QCOMPARE(QString::fromUtf8(option->text), everyText[i]);
        QCOMPARE(choices(*option), expectedChoices(keyword));
        const QByteArray expectedDefault = keyword == u"KvAutoTapeCut"_s
                                               ? QByteArray(printer->autoTapeCut)
                                               : expectedChoices(keyword).first().toUtf8();
        QCOMPARE(QByteArray(option->defchoice), expectedDefault);
    }
}

void tst_drivers::plainOption()
{
    const PPD ppd(ppdOpenFile(QFile::encodeName(ppdPath(u"korvane-plain"_s)).constData()));
    QVERIFY(ppd);
    const ppd_option_t *density = ppdFindOption(ppd.get(), "KvDensity");
    QVERIFY(density);
    QCOMPARE(choices(*density), words("Light Normal Dark"));
    QCOMPARE(QByteArray(density->defchoice), QByteArray("Normal"));
}

void tst_drivers::mediaPrefixes()
{
    OPEN_PRINTER();
    QSet<QString> prefixes;
    for (const ppd_size_t &size : std::span(ppd->sizes, static_cast<size_t>(ppd->num_sizes))) {
        prefixes.insert(prefixOf(QString::fromUtf8(size.name)));
    }
    QVERIFY(prefixes.remove(QString()));
    QCOMPARE(prefixes, toSet(printer->prefixes));
    QCOMPARE(ppd->variable_sizes != 0, printer->prefixes.contains(u"Custom"_s));
}

void tst_drivers::mediaDimensions()
{
    static const QRegularExpression dimensions(u"(\\d+)(?:x(\\d+))?$"_s);
    OPEN_PRINTER();
    for (const ppd_size_t &size : std::span(ppd->sizes, static_cast<size_t>(ppd->num_sizes))) {
        const QString name = QString::fromUtf8(size.name);
        if (name == u"Custom"_s) {
            continue;
        }
        const QRegularExpressionMatch match = dimensions.match(name);
        QVERIFY2(match.hasMatch(), size.name);
        const double length = match.hasCaptured(2) ? match.captured(2).toDouble() : 100.0;
        const auto is = [](float points, double millimetres) {
            return qAbs(points - millimetres * pointsPerMillimetre) < 0.001;
        };
        QVERIFY2(is(size.width, match.captured(1).toDouble()), size.name);
        QVERIFY2(is(size.length, length), size.name);
        QVERIFY2(is(size.left, 1.0) && is(size.bottom, 1.0), size.name);
        QVERIFY2(is(size.width - size.right, 1.0) && is(size.length - size.top, 1.0), size.name);
    }
}

KV_CORE_TEST(tst_drivers)

#include "tst_drivers.moc"
