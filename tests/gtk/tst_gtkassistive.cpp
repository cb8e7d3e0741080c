// SPDX-License-Identifier: Apache-2.0
#include "AccessibleLines.h"
#include "DesktopSession.h"
#include "EveryGtk.h"
#include "GtkDialog.h"
#include "applications/Waiting.h"

#include <QTest>

/// The panel in GTK's dialogs for users who do not see it or have no mouse.
class tst_gtkassistive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void everythingIsTold_data() { everyGtk(); }
    void everythingIsTold();
    void keyboardIsEnough_data() { everyGtk(); }
    void keyboardIsEnough();

private: // NOLINT(readability-redundant-access-specifiers)
    GtkDialog dialog() const;
    /// Presses the tabulator until the focus is there; false when that takes too many steps.
    bool moveFocus(GtkDialog &dialog, const QString &focus) const;

    DesktopSession mSession;
};

void tst_gtkassistive::initTestCase()
{
    QCOMPARE(mSession.open(), QString());
    QCOMPARE(mSession.begin({}), QString());
}

GtkDialog tst_gtkassistive::dialog() const
{
    QFETCH(const QString, gtk);
    return GtkDialog(gtk, mSession.environment(), {u"NO_AT_BRIDGE=0"_s, u"GTK_A11Y=atspi"_s});
}

void tst_gtkassistive::everythingIsTold()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open all"_s));
    QVERIFY(dialog.shows({u"tab:Cut Options"_s, u"box:Half Cut off"_s}));
    QVERIFY(dialog.tell(u"tab"_s));
    QVERIFY(dialog.tell(u"click Cut Mark"_s));
    QVERIFY(dialog.shows({u"preset:Cut marks"_s}));
    QVERIFY(dialog.tell(u"click Special Tape"_s));
    QVERIFY(dialog.shows({u"box:Half Cut off grey"_s}));
    const QString reason = u", grey; Not available together with “Special Tape”."_s;
    const QStringList expected = {
        u"checkbox: Cut Mark, checked; Prints marks between the labels that show where to cut by "
        "hand."_s,
        u"checkbox: Cut Every, checked"_s + reason,
        u"spinbutton: Number of labels between cuts 1"_s + reason,
        u"label: labels"_s + reason,
        u"checkbox: Half Cut"_s + reason,
        u"combobox: Ready-made combination, Cut marks; Selects the check boxes of a usual "
        "combination of the options."_s,
        u": Picture of the strip; It is a special tape, which is not cut between the labels."_s,
    };
    QStringList missing;
    waitFor([&] {
        const QStringList lines = accessibleLines(mSession.accessBus());
        missing = expected;
        missing.removeIf([&lines](const QString &line) {
            return std::any_of(lines.begin(), lines.end(), [&line](const QString &told) {
                return line.startsWith(u':') ? told.endsWith(line) : told == line;
            });
        });
        return missing.isEmpty();
    });
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
    QCOMPARE(dialog.end(), 0);
    QCOMPARE(dialog.ownErrors(), QStringList());
}

bool tst_gtkassistive::moveFocus(GtkDialog &dialog, const QString &focus) const
{
    constexpr int longestWay = 12;
    QString now = dialog.focus();
    for (int i = 0; i < longestWay && now != focus; ++i) {
        const QString before = now;
        if (!mSession.press(u"Tab"_s) ||
            !waitFor([&] { return (now = dialog.focus()) != before; })) {
            return false;
        }
    }
    return now == focus;
}

void tst_gtkassistive::keyboardIsEnough()
{
    GtkDialog dialog = this->dialog();
    QVERIFY(dialog.tell(u"open follow"_s));
    QVERIFY(dialog.shows({u"tab:Cut Options"_s, u"box:Half Cut off"_s}));
    QVERIFY(mSession.workAt(u"^Print$"_s));
    QVERIFY(mSession.press(u"ctrl+Next"_s));
    QVERIFY(mSession.press(u"ctrl+Next"_s));
    QVERIFY(waitFor([&dialog] { return dialog.focus() == u"GtkNotebook"_s; }));
    QVERIFY(moveFocus(dialog, u"Cut Every"_s));
    QVERIFY(mSession.press(u"space"_s));
    QVERIFY(
        dialog.shows({u"box:Cut Every on"_s, u"cups-KvAutoTapeCut=ON"_s, u"focus:Cut Every"_s}));
    QVERIFY(moveFocus(dialog, u"GtkSpinButton"_s));
    QVERIFY(mSession.press(u"Up"_s));
    QVERIFY(dialog.shows({u"count:2"_s, u"cups-KvCutLabel=2"_s, u"focus:GtkSpinButton"_s}));
    QVERIFY(moveFocus(dialog, u"GtkComboBox"_s));
    QVERIFY(mSession.press(u"Down"_s));
    QVERIFY(dialog.shows({u"preset:Chain printing"_s, u"focus:GtkComboBox"_s}));
}

KV_CORE_TEST(tst_gtkassistive)
#include "tst_gtkassistive.moc"
