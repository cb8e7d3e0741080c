// SPDX-License-Identifier: Apache-2.0
#include "printcore/ProblemLine.h"

#include <QTest>

/// How problems are told on standard error.
class tst_problemline : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void line_data();
    void line();
};

void tst_problemline::line_data()
{
    const TestTable<QString, QString> table("text", "line");
    const auto same = [&table](const char *name, const QString &text) {
        table.add(name, text, text);
    };
    same("empty", u""_s);
    same("ASCII", u"a.pde: \"x\" is missing (100 %)"_s);
    same("backslash", u"C:\\n"_s);
    same("letters", u"Größe 印刷 طباعة"_s);
    same("beyond 16 bits", u"label \U0001F3F7"_s);
    table.add("newlines", u"a\nkvprint: b\r\n"_s, u"a\\nkvprint: b\\r\\n"_s);
    table.add("tab", u"a\tb"_s, u"a\\tb"_s);
    table.add("escape", u"\x1b]0;title\a\x1b[31m"_s, u"\\x1b]0;title\\x07\\x1b[31m"_s);
    table.add("null", u"a"_s + QChar(u'\0') + u"b"_s, u"a\\x00b"_s);
    table.add("delete", QString(QChar(0x7f)), u"\\x7f"_s);
    table.add("C1", QString(QChar(0x9b)), u"\\x9b"_s);
    table.add("other ends of lines", u"a\u2028b\u2029c\u0085d"_s, u"a\\u2028b\\u2029c\\x85d"_s);
    table.add("turned around", u"\u202egnp.exe"_s, u"\\u202egnp.exe"_s);
    table.add("half a character", QString(QChar(0xd83c)) + u"x"_s, u"\\ud83cx"_s);
    table.add("tag", u"\U000E0041"_s, u"\\U000e0041"_s);
}

void tst_problemline::line()
{
    QFETCH(const QString, text);
    QTEST(asOneLine(text), "line");
}

KV_CORE_TEST(tst_problemline)
#include "tst_problemline.moc"
