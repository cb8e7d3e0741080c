// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "BundleFolder.h"
#include "PanelUser.h"
#include "PrintingTest.h"
#include "SampleChoices.h"
#include "tests/support/AnotherUser.h"

#include <QBuffer>
#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTest>

#include <functional>

namespace {

/// The bundle itself.
const QString whole = u""_s;
const QString resources = u"Contents/Resources"_s;
const QString info = u"Contents/Info.json"_s;
const QString libraryName = u"libKVMQRVOptions-qt%1.so"_s.arg(QT_VERSION_MAJOR);
const QString library = u"Contents/Linux/"_s + libraryName;
const QString form = u"Contents/Resources/OptionPDE.ui"_s;
const QString texts = u"Contents/Resources/en.qm"_s;
const QString picture = u"Contents/Resources/AHCMOnOffOffOff.png"_s;

const QString ownLibrary =
    QStringLiteral(KV_BUNDLE_FOLDER "/../libkvprintcore-qt%1.so").arg(QT_VERSION_MAJOR);

QString otherPlugIn()
{
    return QCoreApplication::libraryPaths().constFirst() + u"/imageformats/libqgif.so"_s;
}

/// A form whose view has this in it.
QByteArray formWith(const QByteArray &elements)
{
    return "<ui version=\"4.0\"><widget class=\"QWidget\" name=\"kPDEView\">" + elements +
           "</widget></ui>";
}

QByteArray nested(const QByteArray &begin, const QByteArray &end, int times)
{
    return begin.repeated(times) + end.repeated(times);
}

/// A picture of one colour.
QByteArray pictureOf(int width, int height)
{
    QImage image(width, height, QImage::Format_Mono);
    image.fill(0);
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return buffer.data();
}

/// As many names of files as the entry "resources" may need to be too long.
QJsonArray names(int count)
{
    QJsonArray all;
    for (int i = 0; i < count; ++i) {
        all.append(i == 0 ? u"OptionPDE.ui"_s : u"en.qm"_s);
    }
    return all;
}

/// Gives an entry of the info file another value.
BundleChange entering(const QString &entry, const QJsonValue &value)
{
    return [entry, value](const BundleFolder &folder) {
        QFile file(folder.path(info));
        if (!file.open(QIODevice::ReadOnly)) {
            return false;
        }
        QJsonObject entries = QJsonDocument::fromJson(file.readAll()).object();
        const bool had = entries.contains(entry);
        entries.insert(entry, value);
        return had && folder.overwrite(info, QJsonDocument(entries).toJson());
    };
}

/// What the panel shows of itself.
enum class Tab { None, Whole, Empty, Untitled, Bare };
} // namespace

Q_DECLARE_METATYPE(Tab)

class tst_badbundle : public PrintingTest
{
    Q_OBJECT

private Q_SLOTS:
    void noBundle_data();
    void noBundle();
    void spoiltBundle_data();
    void spoiltBundle();
    void closedBundle_data();
    void closedBundle();
    void formGoneSinceTheBundleWasLoaded();
    void requestWithoutAForm();
    void spoiltBundleBesideAWholeOne();
    void problemsAreToldOnce();
};

void tst_badbundle::noBundle_data()
{
    const TestTable<QString, QString> table("folder", "problem");
    const QString nowhere = mSite.path(u"nowhere"_s);
    table.add("no folder", nowhere, nowhere + u" is missing"_s);
    const QString empty = mSite.path(u"empty"_s);
    QVERIFY(QDir().mkpath(empty));
    table.add("empty folder", empty, empty + u": there is no panel bundle"_s);
    const QString file = mSite.file(u"a.pde"_s, "no folder");
    table.add("a file of the bundle's name", QFileInfo(file).path(), file + u" is a file"_s);
    table.add("a file of the folder's name", file, file + u" is a file"_s);
}

void tst_badbundle::noBundle()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, problem);
    AttachedDialog dialog(u"tape"_s, {}, folder);
    QVERIFY(dialog.user().open());
    QCOMPARE(dialog.problems(), QStringList{problem});
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList());
}

void tst_badbundle::spoiltBundle_data()
{
    const TestTable<BundleChange, Tab, QString> table("spoil", "tab", "problem");
    const auto add = [&table](const char *name, const BundleChange &spoil, Tab tab,
                              const char *problem) {
        QString expected = QString::fromLatin1(problem);
        expected.replace(u"LIBRARY"_s, QRegularExpression::escape(libraryName));
        expected.replace(u"VERSION"_s, QString::number(QT_VERSION_MAJOR));
        table.add(name, spoil, tab, expected);
    };
    add("library missing", changing(&BundleFolder::remove, library), Tab::None,
        "^Spoilt\\.pde: LIBRARY is missing$");
    add("library is a text", changing(&BundleFolder::overwrite, library, "no library\n"), Tab::None,
        "^Spoilt\\.pde: .*LIBRARY.* is not an? (valid )?ELF object");
    add("library is empty", changing(&BundleFolder::overwrite, library, ""), Tab::None,
        "^Spoilt\\.pde: .*LIBRARY.* is not an? (valid Qt plugin|ELF object)");
    add("library is cut short", changing(&BundleFolder::truncate, library, 1000), Tab::None,
        "^Spoilt\\.pde: .*LIBRARY.* (past the end of the file|exceed file size)");
    add("library is no plug-in", changing(&BundleFolder::replace, library, ownLibrary), Tab::None,
        "^Spoilt\\.pde: .*(LIBRARY.* is not a Qt plugin|plugin meta data from .*LIBRARY)");
    add("library is another plug-in", changing(&BundleFolder::replace, library, otherPlugIn()),
        Tab::None, "^Spoilt\\.pde: LIBRARY is no print dialog plug-in$");
    add("library for another protocol",
        changing(&BundleFolder::replace, library, QStringLiteral(KV_FUTURE_PANELS)), Tab::None,
        "^Spoilt\\.pde: LIBRARY is for version 2\\.0 of the panel protocol, and kvprint has "
        "1\\.0$");
    add("library is a folder", changing(&BundleFolder::replaceByFolder, library), Tab::None,
        "^Spoilt\\.pde: LIBRARY is a folder$");
    add("library is a pipe", changing(&BundleFolder::replaceByPipe, library), Tab::None,
        "^Spoilt\\.pde: LIBRARY is a pipe$");
    add("library is a link to nothing",
        changing(&BundleFolder::replaceByLink, library, u"/none.so"_s), Tab::None,
        "^Spoilt\\.pde: LIBRARY is a link to /none.so, which is missing$");
    add("bundle is a link to nothing",
        changing(&BundleFolder::replaceByLink, whole, u"/none.pde"_s), Tab::None,
        "/Spoilt\\.pde is a link to /none.pde, which is missing$");
    add("bundle is a link to itself",
        changing(&BundleFolder::replaceByLink, whole, u"Spoilt.pde"_s), Tab::None,
        "/Spoilt\\.pde cannot be reached: Too many levels of symbolic links$");
    add("bundle is a pipe", changing(&BundleFolder::replaceByPipe, whole), Tab::None,
        "/Spoilt\\.pde is a pipe$");
    add("info file missing", changing(&BundleFolder::remove, info), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: is missing$");
    add("info file is a pipe", changing(&BundleFolder::replaceByPipe, info), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: is a pipe$");
    add("info file is no JSON", changing(&BundleFolder::overwrite, info, "{ \"identifier\": "),
        Tab::None, "/Spoilt\\.pde/Contents/Info\\.json: malformed JSON at offset ");
    add("info file lacks an entry",
        changing(&BundleFolder::overwrite, info, "{ \"identifier\": \"a.b\" }"), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: the entry \"version\" is missing$");
    add("info file names another class", entering(u"principalClass"_s, u"OtherPlugIn"_s), Tab::None,
        "^Spoilt\\.pde: the library has no class OtherPlugIn that works on this system$");
    const QString otherQt = u"qt%1"_s.arg(11 - QT_VERSION_MAJOR);
    add("bundle for another Qt", entering(u"libraries"_s, QJsonObject{{otherQt, libraryName}}),
        Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: the entry \"libraries\" has none for Qt VERSION$");
    add("form missing", changing(&BundleFolder::remove, form), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is missing$");
    add("form is a pipe", changing(&BundleFolder::replaceByPipe, form), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is a pipe$");
    add("resources missing", changing(&BundleFolder::remove, resources), Tab::Bare,
        "^Spoilt\\.pde: Contents/Resources is missing$");
    add("form is no form", changing(&BundleFolder::overwrite, form, "no form"), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: ");
    add("form is cut short", changing(&BundleFolder::truncate, form, 900), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line \\d+: ");
    add("texts missing", changing(&BundleFolder::remove, texts), Tab::Untitled,
        "^Spoilt\\.pde: en\\.qm is missing$");
    add("texts are none", changing(&BundleFolder::overwrite, texts, "no texts"), Tab::Untitled,
        "^Spoilt\\.pde: en\\.qm is no string table$");
    add("texts are a pipe", changing(&BundleFolder::replaceByPipe, texts), Tab::Untitled,
        "^Spoilt\\.pde: en\\.qm is a pipe$");
    add("picture missing", changing(&BundleFolder::remove, picture), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is missing$");
    add("picture is a pipe", changing(&BundleFolder::replaceByPipe, picture), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is a pipe$");
    add("picture is no picture", changing(&BundleFolder::overwrite, picture, "no picture"),
        Tab::Whole, "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is no picture$");
    add("picture is empty", changing(&BundleFolder::overwrite, picture, ""), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is no picture$");
    add("picture is cut short", changing(&BundleFolder::truncate, picture, 300), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is no picture$");

    const qint64 gigabyte = 1024 * 1024 * 1024;
    for (const qint64 size : {gigabyte, 3 * gigabyte}) {
        add(size == gigabyte ? "info file of 1 GB" : "info file of 3 GB",
            changing(&BundleFolder::enlarge, info, size), Tab::None,
            "/Spoilt\\.pde/Contents/Info\\.json: has more than 262144 bytes$");
        add(size == gigabyte ? "form of 1 GB" : "form of 3 GB",
            changing(&BundleFolder::enlarge, form, size), Tab::Empty,
            "^Spoilt\\.pde: OptionPDE\\.ui has more than 262144 bytes$");
        add(size == gigabyte ? "texts of 1 GB" : "texts of 3 GB",
            changing(&BundleFolder::enlarge, texts, size), Tab::Untitled,
            "^Spoilt\\.pde: en\\.qm has more than 1048576 bytes$");
        add(size == gigabyte ? "picture of 1 GB" : "picture of 3 GB",
            changing(&BundleFolder::enlarge, picture, size), Tab::Whole,
            "^Spoilt\\.pde: AHCMOnOffOffOff\\.png has more than 1048576 bytes$");
    }
    add("300,000 resources", entering(u"resources"_s, names(300'000)), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: has more than 262144 bytes$");
    add("2,001 resources", entering(u"resources"_s, names(2001)), Tab::Whole,
        "^Spoilt\\.pde: Contents/Info\\.json: \"resources\" has 2001 names: those after the first "
        "2000 are left out$");
    const QByteArray widget = "<widget class=\"QWidget\">";
    add("form of nested widgets",
        changing(&BundleFolder::overwrite, form, formWith(nested(widget, "</widget>", 5000))),
        Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: there are more than 64 elements within "
        "each other$");
    add("form of many widgets",
        changing(&BundleFolder::overwrite, form,
                 formWith(QByteArray(widget + "</widget>").repeated(500))),
        Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: there are more than 500 widgets$");
    add("form of many elements",
        changing(&BundleFolder::overwrite, form, formWith(QByteArray("<item/>").repeated(10'000))),
        Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: there are more than 10000 elements$");
    const auto addForm = [&](const QByteArray &name, const QByteArray &contents,
                             const QString &problem) {
        add(name.constData(), changing(&BundleFolder::overwrite, form, formWith(contents)),
            Tab::Empty,
            qPrintable(u"^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: "_s +
                       QRegularExpression::escape(problem) + QLatin1Char('$')));
    };
    for (const QByteArray element : {"pixmap", "PixMap"}) {
        addForm("form with a " + element,
                "<property name=\"pixmap\"><" + element + ">/dev/zero</" + element + "></property>",
                u"there is a picture, which would be read from a file"_s);
    }
    for (const QByteArray property : {"markdown", "source", "styleSheet", "textFormat"}) {
        addForm("form with a " + property,
                "<property name=\"" + property + "\"><string/></property>",
                u"there is the property \"%1\", which may have files read"_s.arg(
                    QLatin1String(property)));
    }
    addForm("form with markup",
            "<property name=\"toolTip\"><string>a&#10;&lt;img src='b'/></string></property>",
            u"there is a \"<\" in a text: markup may have files read"_s);
    addForm("form with a class of two lines", "<widget class=\"A&#10;B\"/>",
            u"there are control characters in the attribute \"class\""_s);
    addForm("form with a value of two lines",
            "<property name=\"focusPolicy\"><enum>A&#10;B</enum></property>",
            u"there are control characters in a name"_s);
    add("picture of many pixels",
        changing(&BundleFolder::overwrite, picture, pictureOf(4097, 1024)), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png has more than 4194304 pixels$");
}

void tst_badbundle::spoiltBundle()
{
    QFETCH(const BundleChange, spoil);
    QFETCH(const Tab, tab);
    QFETCH(const QString, problem);
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(spoil(folder));
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QTest::qWait(0);

    const bool isUntitled = tab == Tab::Untitled || tab == Tab::Bare;
    const QString title = isUntitled ? u"OP_PANEL_NAME"_s : kPanelTab;
    QCOMPARE(dialog.user().showTab(title), tab != Tab::None);
    const bool hasBoxes = tab == Tab::Whole || tab == Tab::Untitled;
    QCOMPARE(dialog.panel().boxes().size(), hasBoxes ? 6 : 0);
    QCOMPARE(dialog.panel().click(u"mHalfCutChkBx"_s), hasBoxes);

    QStringList choices = SampleChoices::defaults(u"tape"_s);
    if (hasBoxes) {
        choices = SampleChoices::replaced(choices, u"KvHalfCut=ON"_s);
    }
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), tab == Tab::None ? QStringList() : choices);

    // Pictures are checked while the dialog is open.
    QVERIFY(QTest::qWaitFor([&] { return dialog.problemsWith(u"Spoilt.pde"_s) > 0; }));
    const QString problems = dialog.problems().join(u"; "_s);
    QVERIFY2(dialog.problems().size() == 1, qPrintable(problems));
    QVERIFY2(QRegularExpression(problem).match(problems).hasMatch(), qPrintable(problems));
}

void tst_badbundle::closedBundle_data()
{
    const TestTable<QString, QString> table("closed", "problem");
    const QString path = u"FOLDER/Spoilt.pde"_s;
    table.add("library", library, u"Spoilt.pde: %1 cannot be read"_s.arg(libraryName));
    table.add("its folder", u"Contents/Linux"_s,
              u"Spoilt.pde: %1 cannot be reached"_s.arg(libraryName));
    table.add("info file", info, path + u"/Contents/Info.json: cannot be read"_s);
    table.add("bundle", whole, path + u" cannot be read"_s);
    table.add("folder of bundles", u".."_s, u"FOLDER cannot be read"_s);
}

void tst_badbundle::closedBundle()
{
    QFETCH(const QString, closed);
    QFETCH(QString, problem);
    const BundleFolder folder;
    QVERIFY(folder.add() && folder.setMode(u".."_s, 0755) && folder.setMode(closed, 0));
    QStringList problems;
    ProblemReporter reporter([&problems](const QString &told) { problems.append(told); });
    {
        const AnotherUser user;
        QVERIFY(PanelBundles::load(folder.path(), reporter).empty());
    }
    QVERIFY(folder.setMode(closed, 0755));
    problem.replace(u"FOLDER"_s, folder.path());
    QCOMPARE(problems, QStringList{problem + u": Permission denied"_s});
}

void tst_badbundle::formGoneSinceTheBundleWasLoaded()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QVERIFY(folder.remove(form));
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.problems(), QStringList{u"Spoilt.pde: OptionPDE.ui is missing"_s});
}

void tst_badbundle::requestWithoutAForm()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.remove(form));
    AttachedDialog dialog(u"tape"_s, {u"KvMirror=ON"_s}, folder.path());
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.problemsWith(u"KvMirror"_s), 0);
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvMirror=ON"));
}

void tst_badbundle::spoiltBundleBesideAWholeOne()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.remove(library));
    QVERIFY(folder.add(u"Whole.pde"_s));
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QCOMPARE(dialog.problems().size(), 1);
    QVERIFY(dialog.openTab());
    QVERIFY(dialog.panel().click(u"mHalfCutChkBx"_s));
    QVERIFY(mSite.choices(dialog.print(mSite.scheduler())).contains(u"KvHalfCut=ON"));
}

void tst_badbundle::problemsAreToldOnce()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.remove(form) && folder.remove(picture));
    AttachedDialog dialog(u"tape"_s, {}, folder.path());
    QVERIFY(dialog.openTab());
    for (const char *printer : {"label", "tape", "plain", "follow"}) {
        QVERIFY(dialog.user().pickPrinter(QLatin1String(printer)));
        dialog.user().showTab(kPanelTab);
    }
    QVERIFY(dialog.print(mSite.scheduler()) > 0);
    QCOMPARE(dialog.problems(),
             QStringList{u"Spoilt.pde: OptionPDE.ui, like AHCMOnOffOffOff.png, is missing"_s});
}

KV_TEST(tst_badbundle)
#include "tst_badbundle.moc"
