// SPDX-License-Identifier: Apache-2.0
#include "TranslationFile.h"
#include "dialog/PanelTab.h"
#include "dialog/SummaryTab.h"
#include "host/HostText.h"
#include "host/PanelHost.h"
#include "host/ProblemReporter.h"

#include <QApplication>
#include <QTest>
#include <QTranslator>

namespace {
/// Counts the application's changes of language.
class LanguageChanges : public QObject
{
public:
    LanguageChanges() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        count += int(watched == qApp && event->type() == QEvent::LanguageChange);
        return false;
    }

    int count = 0;
};
} // namespace

/// The dialog's parts around the panels in the user's language, in an application that has no
/// translator.
class HostTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();

    void textsFollowTheUser_data() { addLanguages(); }
    void textsFollowTheUser();
    void unknownTextIsItself();
    void tabsFollowTheUser_data() { addLanguages(); }
    void tabsFollowTheUser();
    void applicationKeepsItsLanguage();

private: // NOLINT(readability-redundant-access-specifiers)
    static void addLanguages();
};

void HostTextsTest::cleanup()
{
    qputenv("LC_ALL", "C.UTF-8");
}

void HostTextsTest::addLanguages()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = TranslationFile::languages();
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void HostTextsTest::textsFollowTheUser()
{
    QFETCH(const QString, language);
    qputenv("LC_ALL", language.toLatin1() + ".UTF-8");
    const HostText texts;
    const TranslationFile file = TranslationFile::ofHost(language);
    QVERIFY(!file.translations().isEmpty());
    for (const Translation &translation : file.translations()) {
        QCOMPARE(texts.text(translation.key.toLatin1().constData()), translation.text);
    }
}

void HostTextsTest::unknownTextIsItself()
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    QCOMPARE(HostText().text("Unheard of"), u"Unheard of"_s);
    QCOMPARE(HostText().text(""), QString());
}

void HostTextsTest::tabsFollowTheUser()
{
    QFETCH(const QString, language);
    qputenv("LC_ALL", language.toLatin1() + ".UTF-8");
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &problem) { problems.append(problem); });
    const PanelBundles bundles = PanelBundles::load(QStringLiteral(KV_BUILT_BUNDLES), reporter);
    QString error;
    auto target = PanelTarget::ofPPD(QStringLiteral(KV_PPD_DIR "/korvane-tape.ppd"),
                                     PPDFile::Marks::Defaults, &error);
    QVERIFY2(target, qPrintable(error));
    PanelHost host(std::move(*target), bundles, reporter);
    QCOMPARE(host.panels().size(), std::size_t(1));

    const TranslationFile panelTexts = TranslationFile::ofBundle(language);
    const PanelTab tab(host, *host.panels().front());
    QCOMPARE(tab.windowTitle(), panelTexts.text(u"OP_PANEL_NAME"_s));

    const TranslationFile hostTexts = TranslationFile::ofHost(language);
    const SummaryTab summary(host);
    QCOMPARE(summary.windowTitle(), hostTexts.text(u"Summary"_s));
    QCOMPARE(summary.headerItem()->text(0), hostTexts.text(u"Option"_s));
    QCOMPARE(summary.headerItem()->text(1), hostTexts.text(u"Choice"_s));
    QVERIFY(summary.topLevelItemCount() > 0);
    QCOMPARE(summary.topLevelItem(0)->text(0), panelTexts.text(u"Auto Cut"_s));
    QCOMPARE(summary.topLevelItem(0)->text(1), panelTexts.text(u"RS_STitle_Yes"_s));
    QCOMPARE(problems, QStringList());
}

void HostTextsTest::applicationKeepsItsLanguage()
{
    qputenv("LC_ALL", "de_DE.UTF-8");
    const LanguageChanges changes;
    QCOMPARE(HostText().text("Choice"), u"Auswahl"_s);
    QCOMPARE(changes.count, 0);
    QCOMPARE(QCoreApplication::translate("Host", "Choice"), u"Choice"_s);

    QTranslator counted;
    QVERIFY(counted.load(u":/kvprint/host/de.qm"_s));
    QCoreApplication::installTranslator(&counted);
    QCOMPARE(changes.count, 1);
}

KV_TEST(HostTextsTest)
#include "tst_hosttexts.moc"
