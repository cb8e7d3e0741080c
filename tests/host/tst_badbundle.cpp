// SPDX-License-Identifier: Apache-2.0
#include "AttachedDialog.h"
#include "BundleFolder.h"
#include "PanelUser.h"
#include "PrintingSite.h"
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
const QString whole = QStringLiteral("");
const QString resources = QStringLiteral("Contents/Resources");
const QString info = QStringLiteral("Contents/Info.json");
const QString libraryName = QStringLiteral("libKVMQRVOptions-qt%1.so").arg(QT_VERSION_MAJOR);
const QString library = QStringLiteral("Contents/Linux/") + libraryName;
const QString form = QStringLiteral("Contents/Resources/OptionPDE.ui");
const QString texts = QStringLiteral("Contents/Resources/en.qm");
const QString picture = QStringLiteral("Contents/Resources/AHCMOnOffOffOff.png");

const QString ownLibrary =
    QStringLiteral(KV_BUNDLE_FOLDER "/../libkvprintcore-qt%1.so").arg(QT_VERSION_MAJOR);

QString otherPlugIn()
{
    return QCoreApplication::libraryPaths().constFirst() +
           QStringLiteral("/imageformats/libqgif.so");
}

BundleChange removing(const QString &file)
{
    return [file](const BundleFolder &folder) {
        return folder.remove(file);
    };
}

BundleChange overwriting(const QString &file, const QByteArray &bytes)
{
    return [file, bytes](const BundleFolder &folder) {
        return folder.overwrite(file, bytes);
    };
}

BundleChange truncating(const QString &file, qint64 size)
{
    return [file, size](const BundleFolder &folder) {
        return folder.truncate(file, size);
    };
}

/// Makes a file that large, without a byte in it.
BundleChange enlarging(const QString &file, qint64 size)
{
    return [file, size](const BundleFolder &folder) {
        return folder.overwrite(file, "") && QFile(folder.path(file)).resize(size);
    };
}

BundleChange replacing(const QString &file, const QString &by)
{
    return [file, by](const BundleFolder &folder) {
        return folder.replace(file, by);
    };
}

BundleChange replacingByFolder(const QString &file)
{
    return [file](const BundleFolder &folder) {
        return folder.replaceByFolder(file);
    };
}

BundleChange replacingByPipe(const QString &file)
{
    return [file](const BundleFolder &folder) {
        return folder.replaceByPipe(file);
    };
}

BundleChange replacingByLink(const QString &file, const QString &target)
{
    return [file, target](const BundleFolder &folder) {
        return folder.replaceByLink(file, target);
    };
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
        all.append(i == 0 ? QStringLiteral("OptionPDE.ui") : QStringLiteral("en.qm"));
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

class tst_badbundle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
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

private: // NOLINT(readability-redundant-access-specifiers)
    PrintingSite mSite;
};

void tst_badbundle::initTestCase()
{
    QCOMPARE(mSite.open(), QString());
}

void tst_badbundle::noBundle_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("problem");
    const QString nowhere = mSite.path(QStringLiteral("nowhere"));
    QTest::newRow("no folder") << nowhere << nowhere + QStringLiteral(" is missing");
    const QString empty = mSite.path(QStringLiteral("empty"));
    QVERIFY(QDir().mkpath(empty));
    QTest::newRow("empty folder") << empty << empty + QStringLiteral(": there is no panel bundle");
    const QString file = mSite.file(QStringLiteral("a.pde"), "no folder");
    QTest::newRow("a file of the bundle's name")
        << QFileInfo(file).path() << file + QStringLiteral(" is a file");
    QTest::newRow("a file of the folder's name") << file << file + QStringLiteral(" is a file");
}

void tst_badbundle::noBundle()
{
    QFETCH(const QString, folder);
    QFETCH(const QString, problem);
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder);
    QVERIFY(dialog.user().open());
    QCOMPARE(dialog.problems(), QStringList{problem});
    QVERIFY(!dialog.tabs().contains(kPanelTab));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), QStringList());
}

void tst_badbundle::spoiltBundle_data()
{
    QTest::addColumn<BundleChange>("spoil");
    QTest::addColumn<Tab>("tab");
    QTest::addColumn<QString>("problem");
    const auto add = [](const char *name, const BundleChange &spoil, Tab tab, const char *problem) {
        QString expected = QString::fromLatin1(problem);
        expected.replace(QStringLiteral("LIBRARY"), QRegularExpression::escape(libraryName));
        expected.replace(QStringLiteral("VERSION"), QString::number(QT_VERSION_MAJOR));
        QTest::newRow(name) << spoil << tab << expected;
    };
    add("library missing", removing(library), Tab::None, "^Spoilt\\.pde: LIBRARY is missing$");
    add("library is a text", overwriting(library, "no library\n"), Tab::None,
        "^Spoilt\\.pde: .*LIBRARY.* is not an? (valid )?ELF object");
    add("library is empty", overwriting(library, ""), Tab::None,
        "^Spoilt\\.pde: .*LIBRARY.* is not an? (valid Qt plugin|ELF object)");
    add("library is cut short", truncating(library, 1000), Tab::None,
        "^Spoilt\\.pde: .*LIBRARY.* (past the end of the file|exceed file size)");
    add("library is no plug-in", replacing(library, ownLibrary), Tab::None,
        "^Spoilt\\.pde: .*(LIBRARY.* is not a Qt plugin|plugin meta data from .*LIBRARY)");
    add("library is another plug-in", replacing(library, otherPlugIn()), Tab::None,
        "^Spoilt\\.pde: LIBRARY is no print dialog plug-in$");
    add("library is a folder", replacingByFolder(library), Tab::None,
        "^Spoilt\\.pde: LIBRARY is a folder$");
    add("library is a pipe", replacingByPipe(library), Tab::None,
        "^Spoilt\\.pde: LIBRARY is a pipe$");
    add("library is a link to nothing", replacingByLink(library, QStringLiteral("/none.so")),
        Tab::None, "^Spoilt\\.pde: LIBRARY is a link to /none.so, which is missing$");
    add("bundle is a link to nothing", replacingByLink(whole, QStringLiteral("/none.pde")),
        Tab::None, "/Spoilt\\.pde is a link to /none.pde, which is missing$");
    add("bundle is a link to itself", replacingByLink(whole, QStringLiteral("Spoilt.pde")),
        Tab::None, "/Spoilt\\.pde cannot be reached: Too many levels of symbolic links$");
    add("bundle is a pipe", replacingByPipe(whole), Tab::None, "/Spoilt\\.pde is a pipe$");
    add("info file missing", removing(info), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: is missing$");
    add("info file is a pipe", replacingByPipe(info), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: is a pipe$");
    add("info file is no JSON", overwriting(info, "{ \"identifier\": "), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: malformed JSON at offset ");
    add("info file lacks an entry", overwriting(info, "{ \"identifier\": \"a.b\" }"), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: the entry \"version\" is missing$");
    add("info file names another class",
        entering(QStringLiteral("principalClass"), QStringLiteral("OtherPlugIn")), Tab::None,
        "^Spoilt\\.pde: the library has no class OtherPlugIn that works on this system$");
    const QString otherQt = QStringLiteral("qt%1").arg(11 - QT_VERSION_MAJOR);
    add("bundle for another Qt",
        entering(QStringLiteral("libraries"), QJsonObject{{otherQt, libraryName}}), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: the entry \"libraries\" has none for Qt VERSION$");
    add("form missing", removing(form), Tab::Empty, "^Spoilt\\.pde: OptionPDE\\.ui is missing$");
    add("form is a pipe", replacingByPipe(form), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is a pipe$");
    add("resources missing", removing(resources), Tab::Bare,
        "^Spoilt\\.pde: Contents/Resources is missing$");
    add("form is no form", overwriting(form, "no form"), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: ");
    add("form is cut short", truncating(form, 900), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line \\d+: ");
    add("texts missing", removing(texts), Tab::Untitled, "^Spoilt\\.pde: en\\.qm is missing$");
    add("texts are none", overwriting(texts, "no texts"), Tab::Untitled,
        "^Spoilt\\.pde: en\\.qm is no string table$");
    add("texts are a pipe", replacingByPipe(texts), Tab::Untitled,
        "^Spoilt\\.pde: en\\.qm is a pipe$");
    add("picture missing", removing(picture), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is missing$");
    add("picture is a pipe", replacingByPipe(picture), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is a pipe$");
    add("picture is no picture", overwriting(picture, "no picture"), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is no picture$");
    add("picture is empty", overwriting(picture, ""), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is no picture$");
    add("picture is cut short", truncating(picture, 300), Tab::Whole,
        "^Spoilt\\.pde: AHCMOnOffOffOff\\.png is no picture$");

    const qint64 gigabyte = 1024 * 1024 * 1024;
    for (const qint64 size : {gigabyte, 3 * gigabyte}) {
        add(size == gigabyte ? "info file of 1 GB" : "info file of 3 GB", enlarging(info, size),
            Tab::None, "/Spoilt\\.pde/Contents/Info\\.json: has more than 262144 bytes$");
        add(size == gigabyte ? "form of 1 GB" : "form of 3 GB", enlarging(form, size), Tab::Empty,
            "^Spoilt\\.pde: OptionPDE\\.ui has more than 262144 bytes$");
        add(size == gigabyte ? "texts of 1 GB" : "texts of 3 GB", enlarging(texts, size),
            Tab::Untitled, "^Spoilt\\.pde: en\\.qm has more than 1048576 bytes$");
        add(size == gigabyte ? "picture of 1 GB" : "picture of 3 GB", enlarging(picture, size),
            Tab::Whole, "^Spoilt\\.pde: AHCMOnOffOffOff\\.png has more than 1048576 bytes$");
    }
    add("300,000 resources", entering(QStringLiteral("resources"), names(300'000)), Tab::None,
        "/Spoilt\\.pde/Contents/Info\\.json: has more than 262144 bytes$");
    add("2,001 resources", entering(QStringLiteral("resources"), names(2001)), Tab::Whole,
        "^Spoilt\\.pde: Contents/Info\\.json: \"resources\" has 2001 names: those after the first "
        "2000 are left out$");
    const QByteArray widget = "<widget class=\"QWidget\">";
    add("form of nested widgets", overwriting(form, formWith(nested(widget, "</widget>", 5000))),
        Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: there are more than 64 elements within "
        "each other$");
    add("form of many widgets",
        overwriting(form, formWith(QByteArray(widget + "</widget>").repeated(500))), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: there are more than 500 widgets$");
    add("form of many elements",
        overwriting(form, formWith(QByteArray("<item/>").repeated(10'000))), Tab::Empty,
        "^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: there are more than 10000 elements$");
    const auto addForm = [&](const QByteArray &name, const QByteArray &contents,
                             const QString &problem) {
        add(name.constData(), overwriting(form, formWith(contents)), Tab::Empty,
            qPrintable(QStringLiteral("^Spoilt\\.pde: OptionPDE\\.ui is no form: line 1: ") +
                       QRegularExpression::escape(problem) + QLatin1Char('$')));
    };
    for (const QByteArray element : {"pixmap", "PixMap"}) {
        addForm("form with a " + element,
                "<property name=\"pixmap\"><" + element + ">/dev/zero</" + element + "></property>",
                QStringLiteral("there is a picture, which would be read from a file"));
    }
    for (const QByteArray property : {"markdown", "source", "styleSheet", "textFormat"}) {
        addForm("form with a " + property,
                "<property name=\"" + property + "\"><string/></property>",
                QStringLiteral("there is the property \"%1\", which may have files read")
                    .arg(QLatin1String(property)));
    }
    addForm("form with markup",
            "<property name=\"toolTip\"><string>a&#10;&lt;img src='b'/></string></property>",
            QStringLiteral("there is a \"<\" in a text: markup may have files read"));
    addForm("form with a class of two lines", "<widget class=\"A&#10;B\"/>",
            QStringLiteral("there are control characters in the attribute \"class\""));
    addForm("form with a value of two lines",
            "<property name=\"focusPolicy\"><enum>A&#10;B</enum></property>",
            QStringLiteral("there are control characters in a name"));
    add("picture of many pixels", overwriting(picture, pictureOf(4097, 1024)), Tab::Whole,
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
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(dialog.user().open());
    QVERIFY(dialog.user().showOptions());
    QTest::qWait(0);

    const bool isUntitled = tab == Tab::Untitled || tab == Tab::Bare;
    const QString title = isUntitled ? QStringLiteral("OP_PANEL_NAME") : kPanelTab;
    QCOMPARE(dialog.user().showTab(title), tab != Tab::None);
    const bool hasBoxes = tab == Tab::Whole || tab == Tab::Untitled;
    PanelUser panel(dialog.user());
    QCOMPARE(panel.boxes().size(), hasBoxes ? 6 : 0);
    QCOMPARE(panel.click(QStringLiteral("mHalfCutChkBx")), hasBoxes);

    QStringList choices = SampleChoices::defaults(QStringLiteral("tape"));
    if (hasBoxes) {
        choices = SampleChoices::replaced(choices, QStringLiteral("KvHalfCut=ON"));
    }
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(job > 0);
    QCOMPARE(mSite.choices(job), tab == Tab::None ? QStringList() : choices);

    // Pictures are checked while the dialog is open.
    QVERIFY(QTest::qWaitFor([&] { return dialog.problemsWith(QStringLiteral("Spoilt.pde")) > 0; }));
    const QString problems = dialog.problems().join(QStringLiteral("; "));
    QVERIFY2(dialog.problems().size() == 1, qPrintable(problems));
    QVERIFY2(QRegularExpression(problem).match(problems).hasMatch(), qPrintable(problems));
}

void tst_badbundle::closedBundle_data()
{
    QTest::addColumn<QString>("closed");
    QTest::addColumn<QString>("problem");
    const QString path = QStringLiteral("FOLDER/Spoilt.pde");
    QTest::newRow("library") << library
                             << QStringLiteral("Spoilt.pde: %1 cannot be read").arg(libraryName);
    QTest::newRow("its folder")
        << QStringLiteral("Contents/Linux")
        << QStringLiteral("Spoilt.pde: %1 cannot be reached").arg(libraryName);
    QTest::newRow("info file") << info << path + u"/Contents/Info.json: cannot be read"_s;
    QTest::newRow("bundle") << whole << path + u" cannot be read"_s;
    QTest::newRow("folder of bundles") << u".."_s << u"FOLDER cannot be read"_s;
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
        QVERIFY(PanelBundle::loadAll(folder.path(), reporter).empty());
    }
    QVERIFY(folder.setMode(closed, 0755));
    problem.replace(u"FOLDER"_s, folder.path());
    QCOMPARE(problems, QStringList{problem + u": Permission denied"_s});
}

void tst_badbundle::formGoneSinceTheBundleWasLoaded()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QVERIFY(folder.remove(form));
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.problems(), QStringList{u"Spoilt.pde: OptionPDE.ui is missing"_s});
}

void tst_badbundle::requestWithoutAForm()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.remove(form));
    AttachedDialog dialog(QStringLiteral("tape"), {QStringLiteral("KvMirror=ON")}, folder.path());
    QVERIFY(dialog.openTab());
    QCOMPARE(dialog.problemsWith(QStringLiteral("KvMirror")), 0);
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvMirror=ON"));
}

void tst_badbundle::spoiltBundleBesideAWholeOne()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.remove(library));
    QVERIFY(folder.add(QStringLiteral("Whole.pde")));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
    QCOMPARE(dialog.problems().size(), 1);
    QVERIFY(dialog.openTab());
    QVERIFY(PanelUser(dialog.user()).click(QStringLiteral("mHalfCutChkBx")));
    const int job = dialog.print(mSite.scheduler());
    QVERIFY(mSite.choices(job).contains(u"KvHalfCut=ON"));
}

void tst_badbundle::problemsAreToldOnce()
{
    const BundleFolder folder;
    QVERIFY(folder.add());
    QVERIFY(folder.remove(form) && folder.remove(picture));
    AttachedDialog dialog(QStringLiteral("tape"), {}, folder.path());
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
