// SPDX-License-Identifier: Apache-2.0
#include "RemotePrintDialog.h"

#include "ApplicationRun.h"
#include "Waiting.h"
#include "support/DialogNames.h"

namespace {
constexpr char dialogClass[] = "QPrintDialog";
constexpr char propertiesClass[] = "QPrintPropertiesDialog";
constexpr char popUpClass[] = "QComboBoxPrivateContainer";
const QString printersMenuName = u"printers"_s;
const QString presetsMenuName = u"mOptionPopUpButton"_s;
const QString papersMenuName = u"pageSizeCombo"_s;

bool isDialog(const SeenWidget &widget)
{
    return widget.isA(dialogClass);
}

bool isInDialog(const SeenWidget &widget)
{
    return widget.isInA(dialogClass) || widget.isInA(propertiesClass);
}

bool isTabBar(const SeenWidget &widget)
{
    return widget.isInA(dialogClass) && widget.isA("QTabBar");
}

bool isPopUp(const SeenWidget &widget)
{
    return widget.isA(popUpClass);
}

bool isPopUpList(const SeenWidget &widget)
{
    return widget.isInA(popUpClass) && !widget.parts().isEmpty();
}

Inspector::Condition isCalled(const QString &nameOrText)
{
    return [nameOrText](const SeenWidget &widget) {
        return isInDialog(widget) && !widget.isA("QDialog") &&
               (widget.name() == nameOrText || widget.text() == nameOrText);
    };
}

/// What xdotool calls the shortcut.
QString keysOf(const char *shortcut)
{
    QStringList keys = QString::fromLatin1(shortcut).split(QLatin1Char('+'));
    for (QString &key : keys) {
        key = key.size() == 1 || key == QLatin1String("Ctrl") ? key.toLower() : key;
    }
    return keys.join(QLatin1Char('+'));
}

QString choiceOf(const SeenWidget &control)
{
    const QString box = control.isChecked() ? u"ON"_s : u"OFF"_s;
    return control.isA("QCheckBox") ? box : control.text();
}
} // namespace

RemotePrintDialog::RemotePrintDialog(const DisplayServer &display, const ApplicationRun &run)
    : mUser(display)
    , mRun(run)
    , mInspector(run.inspectorSocket())
{
}

bool RemotePrintDialog::takesShortcut(const SeenWidget &window, const char *shortcut) const
{
    return window.isActive() && window.shortcuts().contains(QLatin1String(shortcut));
}

bool RemotePrintDialog::awaitApplication()
{
    const auto canPrint = [this](const SeenWidget &window) {
        return takesShortcut(window, mRun.application().printShortcut);
    };
    return mInspector.awaitAtRest(canPrint).exists();
}

bool RemotePrintDialog::open()
{
    return awaitApplication() && mUser.press(keysOf(mRun.application().printShortcut)) &&
           mInspector
               .awaitAtRest(
                   [](const SeenWidget &widget) { return isDialog(widget) && widget.isActive(); })
               .exists();
}

SeenWidget RemotePrintDialog::control(const QString &nameOrText)
{
    return mInspector.find(isCalled(nameOrText));
}

bool RemotePrintDialog::clickRow(const QString &text)
{
    const auto row = [&text](const SeenWidget &list) {
        return isPopUpList(list) ? list.part(text) : SeenWidget();
    };
    SeenWidget list =
        mInspector.awaitAtRest([&row](const SeenWidget &widget) { return row(widget).exists(); });
    // A long list is scrolled with the keyboard.
    const bool isSeen = waitFor([&] {
        list = mInspector.find([&row](const SeenWidget &widget) { return row(widget).exists(); });
        const SeenWidget wanted = row(list);
        if (!wanted.exists() || (wanted.area().isValid() && wanted.area().height() > 4)) {
            return true;
        }
        mUser.press(u"Down"_s);
        return false;
    });
    return isSeen && row(list).exists() && mUser.click(row(list).clickPlace()) &&
           mInspector.awaitGone(isPopUp);
}

bool RemotePrintDialog::pickItem(const QString &menu, const QString &text)
{
    const SeenWidget seen = mInspector.awaitAtRest(isCalled(menu));
    if (!seen.items().contains(text) || !seen.isEnabled()) {
        return false;
    }
    return mUser.click(seen.clickPlace()) && clickRow(text) &&
           waitFor([&] { return control(menu).text() == text; });
}

bool RemotePrintDialog::pickPrinter(const QString &name)
{
    return mInspector.await(isCalled(printersMenuName)).text() == name ||
           pickItem(printersMenuName, name);
}

QStringList RemotePrintDialog::printers()
{
    return control(printersMenuName).items();
}

bool RemotePrintDialog::unfold()
{
    if (mInspector.find(isTabBar).exists()) {
        return true;
    }
    const SeenWidget button = mInspector.awaitAtRest([](const SeenWidget &widget) {
        return isInDialog(widget) && widget.text().startsWith(QLatin1String("Options"));
    });
    return button.exists() && mUser.click(button.clickPlace()) &&
           mInspector.awaitAtRest(isTabBar).exists();
}

QStringList RemotePrintDialog::tabs()
{
    QStringList titles;
    if (unfold()) {
        const QList<SeenWidget> tabs = mInspector.find(isTabBar).parts();
        for (const SeenWidget &tab : tabs) {
            titles.append(tab.text());
        }
    }
    return titles;
}

bool RemotePrintDialog::turnTo(const QString &title)
{
    const SeenWidget bar = mInspector.awaitAtRest([&title](const SeenWidget &widget) {
        return isTabBar(widget) && widget.part(title).exists();
    });
    return bar.exists() && mUser.click(bar.part(title).clickPlace()) &&
           waitFor([&] { return mInspector.find(isTabBar).part(title).isChecked(); });
}

bool RemotePrintDialog::openPanel()
{
    return unfold() && turnTo(kPanelTab) &&
           mInspector
               .awaitAtRest([](const SeenWidget &widget) { return !widget.keyword().isEmpty(); })
               .exists();
}

bool RemotePrintDialog::click(const QString &nameOrText)
{
    const SeenWidget seen = mInspector.awaitAtRest(isCalled(nameOrText));
    return seen.exists() && seen.isEnabled() && mUser.click(seen.clickPlace());
}

bool RemotePrintDialog::tick(const QString &box, bool on)
{
    const SeenWidget seen = mInspector.awaitAtRest(isCalled(box));
    return seen.exists() && seen.isChecked() != on && click(box) &&
           waitFor([&] { return control(box).isChecked() == on; });
}

bool RemotePrintDialog::typeCount(const QString &count)
{
    const QString field = u"mCutEveryTxBx"_s;
    return click(field) && waitFor([&] { return control(field).hasFocus(); }) &&
           mUser.press(u"ctrl+a"_s) && mUser.type(count) &&
           waitFor([&] { return control(field).text() == count; });
}

bool RemotePrintDialog::pickPreset(const QString &text)
{
    return pickItem(presetsMenuName, text);
}

QString RemotePrintDialog::preset()
{
    return control(presetsMenuName).text();
}

bool RemotePrintDialog::pickPaper(const QString &text)
{
    return click(u"properties"_s) && mInspector.awaitAtRest(isCalled(papersMenuName)).exists() &&
           pickItem(papersMenuName, text) && click(u"OK"_s) &&
           mInspector.awaitGone(
               [](const SeenWidget &widget) { return widget.isA(propertiesClass); });
}

QStringList RemotePrintDialog::shownChoices()
{
    QStringList choices;
    const QList<SeenWidget> all = mInspector.look();
    for (const SeenWidget &widget : all) {
        if (!widget.keyword().isEmpty()) {
            choices.append(widget.keyword() + QLatin1Char('=') + choiceOf(widget));
        }
    }
    choices.sort();
    return choices;
}

bool RemotePrintDialog::isEnabled(const QString &name)
{
    return control(name).isEnabled();
}

QStringList RemotePrintDialog::summary()
{
    QStringList lines;
    if (turnTo(kSummaryTab)) {
        const SeenWidget list = mInspector.await([](const SeenWidget &widget) {
            return widget.name() == QLatin1String("panelSummary") && !widget.parts().isEmpty();
        });
        const QList<SeenWidget> rows = list.parts();
        for (const SeenWidget &row : rows) {
            lines.append(row.text());
        }
    }
    return lines;
}

bool RemotePrintDialog::leaveBy(const QString &button)
{
    constexpr int effectMs = 3'000;
    const auto isLeft = [this] {
        return !mInspector.find(isDialog).exists();
    };
    // The mouse misses a button that moves while the window manager places the dialog.
    return click(button) && waitFor([&] {
               return waitFor(isLeft, effectMs) ||
                      (control(button).exists() && mUser.click(control(button).clickPlace()) &&
                       waitFor(isLeft, effectMs));
           });
}

bool RemotePrintDialog::print()
{
    return leaveBy(u"Print"_s);
}

bool RemotePrintDialog::cancel()
{
    return leaveBy(u"Cancel"_s);
}

bool RemotePrintDialog::quit()
{
    return awaitApplication() && mUser.press(keysOf(mRun.application().quitShortcut));
}
