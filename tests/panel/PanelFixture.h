// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "support/PanelProbe.h"
#include "support/TestHost.h"
#include "textinput/FieldEdits.h"

#include <QMap>
#include <QStringList>
#include <QTest>

using Option = OptionCatalogue::Option;

/// The nine options in the catalogue's order.
inline const QList<Option> everyOption = {
    OptionCatalogue::CutEvery,    OptionCatalogue::CutAtEnd,       OptionCatalogue::Mirror,
    OptionCatalogue::AutoCut,     OptionCatalogue::HalfCut,        OptionCatalogue::ChainPrint,
    OptionCatalogue::SpecialTape, OptionCatalogue::RemoveBlkSpace, OptionCatalogue::CutMark,
};

/// The options by short names.
inline constexpr Option cutEvery = OptionCatalogue::CutEvery;
inline constexpr Option cutAtEnd = OptionCatalogue::CutAtEnd;
inline constexpr Option mirror = OptionCatalogue::Mirror;
inline constexpr Option autoCut = OptionCatalogue::AutoCut;
inline constexpr Option halfCut = OptionCatalogue::HalfCut;
inline constexpr Option chainPrint = OptionCatalogue::ChainPrint;
inline constexpr Option specialTape = OptionCatalogue::SpecialTape;
inline constexpr Option removeBlkSpace = OptionCatalogue::RemoveBlkSpace;
inline constexpr Option cutMark = OptionCatalogue::CutMark;

/// How many combinations of the nine boxes there are.
inline constexpr unsigned long long everyCombination = 1U << 9U;

/// What the tests know of an option, apart from the catalogue.
struct OptionFacts
{
    const char *keyword;
    const char *outlet;
    const char *labelKey;
    const char *summaryKey;
    quint32 itemType;
};

const OptionFacts &factsOf(Option option);

/// The options but one.
QList<Option> everyOptionBut(Option missing);

/// The keywords of the counts from the smallest to the largest.
QByteArrayList countsFrom(int smallest, int largest);

/// The printer that a test needs; all nine options, off, unless said otherwise.
struct TestPrinter
{
    QList<Option> options = everyOption;
    /// Whether auto cut has a check box of its own.
    bool separateAutoCut = true;
    bool labelSeries = false;
    /// Default choices other than OFF, and other than "1" for the count.
    QMap<Option, QByteArray> defaults = {};

    /// The PPD, with the sizes 62x29, DC03, AV2055, FL30, C_62, HS058 and Custom.62x100.
    PPDText text() const;
};
Q_DECLARE_METATYPE(TestPrinter)

/// A printer without cut marks, with a count that is not "1".
TestPrinter tapePrinter();

/// A printer whose boxes start all off, as the count is not "1".
TestPrinter allOff(bool labelSeries = false);

/// A printer whose PPD has all nine options, one of them with these choices.
/// @param text the option's text; its keyword when empty.
PPDText printerWith(Option option, const QByteArrayList &choices, const QByteArray &defaultChoice,
                    bool separateAutoCut = true, const QByteArray &text = {});

/// What the host is told of a choice: "Keyword=Choice".
QString pairOf(Option option, const QString &choice);

/// Adds a column "option" and a row for each of the options, under its keyword.
void addOptionRows(const QList<Option> &options);

/// A panel that records which items it refreshes and which selections it re-reads.
class RecordingPanel : public PanelProbe
{
    Q_OBJECT

public:
    using PanelProbe::PanelProbe;

    void updateUIItem(quint32 itemType) override;
    void updateMarkedSelections(quint32 itemType) override;

    /// Makes a choice an option's selection.
    void select(Option option, const PDEChoice *choice);

    QList<quint32> refreshed;
    QList<quint32> reread;
};

/// Sees a widget being painted.
class PaintWatcher : public QObject
{
    Q_OBJECT

public:
    explicit PaintWatcher(QWidget *widget);

    /// Waits until the widget is painted; false when it never is.
    bool waitForPaint() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool mIsPainted = false;
};

/// A panel with its dialog, driven as a user does.
class PanelFixture
{
public:
    explicit PanelFixture(const TestPrinter &printer = {},
                          std::shared_ptr<Bundle> panelBundle = testBundle());
    explicit PanelFixture(const PPDText &text, std::shared_ptr<Bundle> panelBundle = testBundle());

    /// Builds the panel.
    void build();
    /// Builds the panel and loads its view.
    void load();
    /// Does what the dialog does until the panel is on the screen, and forgets what was told.
    void show();
    /// Lets the panel restore what is marked in the PPD, and forgets what was told.
    void restore();

    /// The pairs told since the last call, as "Keyword=Choice".
    QStringList takeTold();

    CheckBox *box(Option option) const { return panel->box(option); }
    bool isOn(Option option) const { return box(option)->isChecked(); }
    /// Ticks a box, or takes the tick away, without the panel's taking it for the user's doing.
    void setOn(Option option, bool on) const { box(option)->setState(on); }
    /// Likewise, what is in the count field.
    void setCount(const QString &text) const { FieldEdits::setText(panel->mCutEveryTxBx, text); }
    /// The options whose boxes are on.
    QList<Option> optionsOn() const;
    /// The keyword of an option's selection; null when it has none.
    QString selectedKeyword(Option option) const;
    /// Clicks a check box with the mouse.
    void click(Option option) const;
    /// Types keys into the count field over what is selected in it: everything.
    void type(const QString &keys) const;
    /// Clicks an arrow of the stepper, "stepUp" or "stepDown".
    void step(const char *arrow) const;

    /// The tags of the menu's items in order.
    QList<int> menuTags() const;
    int selectedTag() const { return panel->mOptionPopUpButton->selectedTag().value_or(-1); }
    /// Gives the menu one item for each of the tags instead of its own.
    void replaceMenu(const QList<int> &tags) const;

    /// Takes the mark from an option's marked choice, so that the option has none.
    void unmark(const char *keyword) const;

    std::shared_ptr<Bundle> bundle;
    std::shared_ptr<TestHost> host;
    std::unique_ptr<RecordingPanel> panel;
};
