// SPDX-License-Identifier: Apache-2.0
#include "DialogOpener.h"
#include "PrintingTest.h"
#include "support/DialogNames.h"

#include <QTemporaryDir>
#include <QTest>

/// When the extension comes to a dialog: once it has been seen, and always before it prints.
class tst_opening : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase_data() { addQtVersionRows(); }
    void dialogIsSeenFirst();
    void tabsCome_data();
    void tabsCome();
    void quickJobHasTheChoices_data();
    void quickJobHasTheChoices();

private: // NOLINT(readability-redundant-access-specifiers)
    QTemporaryDir mFolder;
};

void tst_opening::dialogIsSeenFirst()
{
    QFETCH_GLOBAL(const QString, qt);
    DialogOpener opener(qt, mFolder.path(), mFolder.path());
    for (int dialog = 0; dialog < 2; ++dialog) {
        QCOMPARE(opener.answer(u"order"_s, tape), QStringList{u"seen first"_s});
    }
    QVERIFY(opener.hasLoaded(u"libkvprintdialog-qt%1.so"_s.arg(qt)));
    QCOMPARE(opener.finish(), u""_s);
}

void tst_opening::tabsCome_data()
{
    const TestTable<QString> table("way");
    table.add("to a dialog that is never painted", u"tabs unpainted"_s);
    table.add("to a dialog behind deleted ones", u"tabs behind deleted"_s);
}

void tst_opening::tabsCome()
{
    QFETCH_GLOBAL(const QString, qt);
    QFETCH(const QString, way);
    DialogOpener opener(qt, mFolder.path(), mFolder.path());
    QVERIFY(opener.answer(way, tape).contains(kPanelTab));
    QCOMPARE(opener.finish(), u""_s);
}

void tst_opening::quickJobHasTheChoices_data()
{
    const TestTable<QString> table("way");
    for (const char *way :
         {"accepted once open", "accepted in exec", "accepted when shown again"}) {
        table.add(way, QString::fromLatin1(way));
    }
}

void tst_opening::quickJobHasTheChoices()
{
    QFETCH_GLOBAL(const QString, qt);
    QFETCH(const QString, way);
    DialogOpener opener(qt, mFolder.path(), mFolder.path());
    const QStringList options = opener.answer(way, tape);
    for (const char *key : {"KvAutoTapeCut", "KvHalfCut", "KvMirror"}) {
        QCOMPARE(options.count(QLatin1String(key)), 1);
    }
    QCOMPARE(opener.finish(), u""_s);
}

KV_CORE_TEST(tst_opening)
#include "tst_opening.moc"
