// SPDX-License-Identifier: Apache-2.0
#include "TranslationFile.h"
#include "support/CheckedStyles.h"
#include "support/PanelProbe.h"
#include "support/TestHost.h"

#include <QApplication>
#include <QLabel>
#include <QStyle>
#include <QTest>

namespace {
const char *textOf(const OptionRow &row)
{
    static const QHash<QByteArray, const char *> texts = {
        {"KvCutLabel", "Cut Every"},       {"KvCutAtEnd", "Cut at End"},
        {"KvMirror", "Mirror Printing"},   {"KvAutoTapeCut", "Auto Cut"},
        {"KvHalfCut", "Half Cut"},         {"KvChainPrint", "Chain Printing"},
        {"KvSpecialTape", "Special Tape"}, {"KvRemoveBlkSpace", "Remove Blank Space"},
        {"KvCutMark", "Cut Mark"},
    };
    return texts.value(row.keyword);
}

/// A printer with all options, whose texts are the sample printers' or none that can be read.
PPDText printer(bool hasTexts)
{
    PPDText ppd;
    for (const OptionRow &row : OptionCatalogue::rows) {
        const QByteArray text = hasTexts ? textOf(row) : "\xFF\xFE";
        if (&row == &OptionCatalogue::rows[OptionCatalogue::CutEvery]) {
            ppd.option(row.keyword, {"1", "2", "3"}, "1", text);
        } else {
            ppd.onOff(row.keyword, "OFF", text);
        }
    }
    return ppd.attribute("KvAutoCutObjHidden", "False")
        .attribute("KvTapeType", "MQ")
        .size("62x29", 175.0, 82.0);
}

/// The panel of a language as the dialog shows it.
class PanelOfLanguage
{
public:
    PanelOfLanguage(const QString &language, const PPDText &ppd)
        : mBundle(testBundle())
        , mHost(std::make_shared<TestHost>(ppd.open()))
    {
        mBundle->setLanguages({language});
        panel = std::make_unique<PanelProbe>(mHost, mBundle);
        mHost->panel = panel.get();
        panel->supportedPPDOptionKeys();
        if (panel->panelView()) {
            panel->willShow();
        }
    }
    ~PanelOfLanguage() { mHost->panel = nullptr; }

    std::unique_ptr<PanelProbe> panel;

private:
    std::shared_ptr<Bundle> mBundle;
    std::shared_ptr<TestHost> mHost;
};
} // namespace

/// The panel with its view, in each language.
class TranslatedPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nameIsTranslated_data() { addLanguages(); }
    void nameIsTranslated();
    void boxesSayThePrintersTexts_data() { addLanguages(); }
    void boxesSayThePrintersTexts();
    void boxesSayThePanelsTexts_data() { addLanguages(); }
    void boxesSayThePanelsTexts();
    void textsFit_data();
    void textsFit();
    void menuIsTranslated_data() { addLanguages(); }
    void menuIsTranslated();
    void summaryIsTranslated_data() { addLanguages(); }
    void summaryIsTranslated();

    void cleanup();

private: // NOLINT(readability-redundant-access-specifiers)
    static void addLanguages();

    const QFont mFont = QApplication::font();
    const QString mStyle = QApplication::style()->objectName();
};

void TranslatedPanelTest::cleanup()
{
    QApplication::setFont(mFont);
    QApplication::setStyle(mStyle);
}

void TranslatedPanelTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = TranslationFile::languages();
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TranslatedPanelTest::nameIsTranslated()
{
    QFETCH(const QString, language);
    const PanelOfLanguage shown(language, printer(true));
    const QString name = TranslationFile::ofBundle(language).text(u"OP_PANEL_NAME"_s);
    QVERIFY(!name.isEmpty());
    QCOMPARE(shown.panel->panelName(), name);
}

void TranslatedPanelTest::boxesSayThePrintersTexts()
{
    QFETCH(const QString, language);
    const TranslationFile texts = TranslationFile::ofBundle(language);
    const PanelOfLanguage shown(language, printer(true));
    for (const OptionRow &row : OptionCatalogue::rows) {
        const auto *box = shown.panel->kPDEView->findChild<CheckBox *>(QLatin1String(row.outlet));
        QVERIFY2(box && !box->isHidden(), row.outlet);
        QCOMPARE(box->title(), texts.text(QLatin1String(textOf(row))));
    }
    QCOMPARE(shown.panel->mCutEveryStr->text(), texts.text(u"RS_Labels"_s));
}

void TranslatedPanelTest::boxesSayThePanelsTexts()
{
    QFETCH(const QString, language);
    const TranslationFile texts = TranslationFile::ofBundle(language);
    const PanelOfLanguage shown(language, printer(false));
    for (const OptionRow &row : OptionCatalogue::rows) {
        const auto *box = shown.panel->kPDEView->findChild<CheckBox *>(QLatin1String(row.outlet));
        QVERIFY2(box && !box->isHidden(), row.outlet);
        QCOMPARE(box->title(), texts.text(QLatin1String(row.labelKey)));
    }
}

void TranslatedPanelTest::textsFit_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("style");
    QTest::addColumn<int>("points");
    const QStringList languages = TranslationFile::languages();
    const QStringList styles = checkedStyles();
    for (const QString &language : languages) {
        for (const QString &style : styles) {
            for (const int points : {9, 14}) {
                QTest::addRow("%s, %s, %d points", qPrintable(language), qPrintable(style), points)
                    << language << style << points;
            }
        }
    }
}

void TranslatedPanelTest::textsFit()
{
    QFETCH(const QString, language);
    QFETCH(const QString, style);
    QFETCH(const int, points);
    QApplication::setStyle(style);
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
    for (const bool hasTexts : {true, false}) {
        const PanelOfLanguage shown(language, printer(hasTexts));
        for (const OptionRow &row : OptionCatalogue::rows) {
            const CheckBox *box = shown.panel->box(row.id);
            QVERIFY2(box->sizeHint().width() <= box->width(), qPrintable(box->title()));
        }
        const QLabel *caption = shown.panel->mCutEveryStr;
        QVERIFY(caption->sizeHint().width() <= caption->width());
    }
}

void TranslatedPanelTest::menuIsTranslated()
{
    QFETCH(const QString, language);
    const TranslationFile texts = TranslationFile::ofBundle(language);
    const PanelOfLanguage shown(language, printer(true));
    const QList<PDEPreset> presets = shown.panel->presets();
    QVERIFY(presets.size() > 1);
    for (const PDEPreset &preset : presets) {
        QCOMPARE(preset.name, texts.text(u"RS_Preset_"_s + preset.identifier));
    }
    QCOMPARE(shown.panel->mOptionPopUpButton->accessibleName(), texts.text(u"RS_Presets"_s));
    QCOMPARE(shown.panel->mCutEveryTxBx->accessibleName(), texts.text(u"RS_CutEveryCount"_s));
}

void TranslatedPanelTest::summaryIsTranslated()
{
    QFETCH(const QString, language);
    const TranslationFile texts = TranslationFile::ofBundle(language);
    const PanelOfLanguage shown(language, printer(true));
    const QVariantMap summary = shown.panel->summaryInfo().value_or(QVariantMap());
    const QString halfCut = texts.text(u"Half Cut"_s);
    QCOMPARE(summary.value(halfCut).toString(), texts.text(u"RS_STitle_No"_s));

    QTest::mouseClick(shown.panel->box(OptionCatalogue::HalfCut), Qt::LeftButton, {},
                      QPoint(8, shown.panel->box(OptionCatalogue::HalfCut)->height() / 2));
    const QVariantMap changed = shown.panel->summaryInfo().value_or(QVariantMap());
    QCOMPARE(changed.value(halfCut).toString(), texts.text(u"RS_STitle_Yes"_s));
}

KV_TEST(TranslatedPanelTest)
#include "tst_translatedpanel.moc"
