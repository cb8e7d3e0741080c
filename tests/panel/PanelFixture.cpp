// SPDX-License-Identifier: Apache-2.0
#include "PanelFixture.h"

#include <QToolButton>

const OptionFacts &factsOf(Option option)
{
    static constexpr OptionFacts facts[] = {
        {"KvCutLabel", "mCutEveryChkBx", "RS_CutAtEvery", "RS_STitle_CutLabels", 256},
        {"KvCutAtEnd", "mCutAndEndChkBx", "RS_CutAtEnd", "RS_STitle_CutAtEnd", 512},
        {"KvMirror", "mMirrorPrintChkBx", "RS_MirrorPrinting", "RS_STitle_MirrorPrinting", 1024},
        {"KvAutoTapeCut", "mAutoCutChkBx", "RS_AutoTapeCut", "RS_STitle_AutoTapeCut", 2048},
        {"KvHalfCut", "mHalfCutChkBx", "RS_HalfCut", "RS_STitle_HalfCut", 4096},
        {"KvChainPrint", "mChainPrintChkBx", "RS_ChainPrinting", "RS_STitle_ChainPrint", 8192},
        {"KvSpecialTape", "mSpecialTapeChkBx", "RS_SpecialTape", "RS_STitle_SpecialTape", 16384},
        {"KvRemoveBlkSpace", "mRemoveBlkSpaceChkBx", "RS_RemoveBlkSpace",
         "RS_STitle_RemoveBlkSpace", 65536},
        {"KvCutMark", "mCutMarkChkBx", "RS_CutMark", "RS_STitle_CutMark", 524288},
    };
    return facts[option];
}

QList<Option> everyOptionBut(Option missing)
{
    QList<Option> options = everyOption;
    options.removeOne(missing);
    return options;
}

QByteArrayList countsFrom(int smallest, int largest)
{
    QByteArrayList counts;
    for (int count = smallest; count <= largest; ++count) {
        counts.append(QByteArray::number(count));
    }
    return counts;
}

PPDText TestPrinter::text() const
{
    PPDText text;
    for (const Option option : options) {
        const QByteArray defaultChoice =
            defaults.value(option, option == OptionCatalogue::CutEvery ? "1" : "OFF");
        if (option == OptionCatalogue::CutEvery) {
            text.option("KvCutLabel", countsFrom(1, 99), defaultChoice);
        } else {
            text.onOff(factsOf(option).keyword, defaultChoice);
        }
    }
    text.attribute("KvAutoCutObjHidden", separateAutoCut ? "False" : "True");
    text.attribute("KvTapeType", labelSeries ? "RV" : "MQ");
    for (const char *size : {"62x29", "DC03", "AV2055", "FL30", "C_62", "HS058", "Custom.62x100"}) {
        text.size(size, 175.0, 82.0);
    }
    return text;
}

TestPrinter tapePrinter()
{
    return {.options = everyOptionBut(cutMark), .defaults = {{cutEvery, "7"}}};
}

TestPrinter allOff(bool labelSeries)
{
    return {.labelSeries = labelSeries, .defaults = {{cutEvery, "7"}}};
}

PPDText printerWith(Option option, const QByteArrayList &choices, const QByteArray &defaultChoice,
                    bool separateAutoCut, const QByteArray &text)
{
    return TestPrinter{.options = everyOptionBut(option), .separateAutoCut = separateAutoCut}
        .text()
        .option(factsOf(option).keyword, choices, defaultChoice, text);
}

QString pairOf(Option option, const QString &choice)
{
    return QLatin1String(factsOf(option).keyword) + u'=' + choice;
}

void addOptionRows(const QList<Option> &options)
{
    QTest::addColumn<int>("option");
    for (const Option option : options) {
        QTest::newRow(factsOf(option).keyword) << int(option);
    }
}

namespace {
/// Gives the custom sizes back the names that the file has: libcups puts an underscore before them.
void listCustomSizes(ppd_file_t &ppd)
{
    for (int i = 0; i < ppd.num_sizes; ++i) {
        const QByteArray name = ppd.sizes[i].name;
        if (name.startsWith("_Custom")) {
            qstrncpy(ppd.sizes[i].name, name.constData() + 1, sizeof(ppd.sizes[i].name));
        }
    }
}
} // namespace

void RecordingPanel::updateUIItem(quint32 itemType)
{
    refreshed.append(itemType);
    PanelProbe::updateUIItem(itemType);
}

void RecordingPanel::updateMarkedSelections(quint32 itemType)
{
    reread.append(itemType);
    PanelProbe::updateMarkedSelections(itemType);
}

void RecordingPanel::select(Option option, const PDEChoice *choice)
{
    this->*OptionCatalogue::rows[option].selection = choice;
}

PaintWatcher::PaintWatcher(QWidget *widget)
{
    QCoreApplication::processEvents();
    widget->installEventFilter(this);
}

bool PaintWatcher::waitForPaint() const
{
    return QTest::qWaitFor([this] { return mIsPainted; });
}

bool PaintWatcher::eventFilter(QObject *, QEvent *event)
{
    mIsPainted = mIsPainted || event->type() == QEvent::Paint;
    return false;
}

PanelFixture::PanelFixture(const TestPrinter &printer, std::shared_ptr<Bundle> panelBundle)
    : PanelFixture(printer.text(), std::move(panelBundle))
{
}

PanelFixture::PanelFixture(const PPDText &text, std::shared_ptr<Bundle> panelBundle)
    : bundle(std::move(panelBundle))
    , host(std::make_shared<TestHost>(text.open()))
{
    host->setPaper(QStringLiteral("62x29"), 82.0);
    listCustomSizes(*host->ppd);
}

void PanelFixture::build()
{
    panel = std::make_unique<RecordingPanel>(host, bundle);
    host->panel = panel.get();
}

void PanelFixture::load()
{
    build();
    panel->panelView();
}

void PanelFixture::show()
{
    build();
    panel->supportedPPDOptionKeys();
    QWidget *view = panel->panelView();
    panel->willShow();
    if (view) {
        view->show();
        view->activateWindow();
        QVERIFY(QTest::qWaitForWindowExposed(view));
    }
    host->takeTold();
    panel->refreshed.clear();
    panel->reread.clear();
}

void PanelFixture::restore()
{
    panel->restoreValuesAndReturnError(nullptr);
    host->takeTold();
}

QStringList PanelFixture::takeTold()
{
    QStringList lines;
    for (const Pair &pair : host->takeTold()) {
        lines.append(pair.first + u'=' + pair.second);
    }
    return lines;
}

QList<Option> PanelFixture::optionsOn() const
{
    QList<Option> on;
    for (const Option option : everyOption) {
        if (box(option) && isOn(option)) {
            on.append(option);
        }
    }
    return on;
}

QString PanelFixture::selectedKeyword(Option option) const
{
    const PDEChoice *selection = panel->selection(option);
    return selection ? selection->ppdTitle() : QString();
}

void PanelFixture::click(Option option) const
{
    CheckBox *target = box(option);
    QTest::mouseClick(target, Qt::LeftButton, {}, QPoint(8, target->height() / 2));
}

void PanelFixture::type(const QString &keys) const
{
    QLineEdit *field = panel->mCutEveryTxBx;
    QTest::mouseClick(field, Qt::LeftButton);
    QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field, keys);
}

void PanelFixture::step(const char *arrow) const
{
    auto *button = panel->mCutEveryStpr->findChild<QToolButton *>(QLatin1String(arrow));
    QTest::mouseClick(button, Qt::LeftButton);
}

QList<int> PanelFixture::menuTags() const
{
    QList<int> tags;
    for (int i = 0; i < panel->mOptionPopUpButton->count(); ++i) {
        tags.append(panel->mOptionPopUpButton->tagAt(i));
    }
    return tags;
}

void PanelFixture::replaceMenu(const QList<int> &tags) const
{
    PopUpButton *menu = panel->mOptionPopUpButton;
    menu->clear();
    QStringList texts;
    for (const int tag : tags) {
        texts.append(QString::number(tag));
    }
    menu->setItemTags(texts);
    for (qsizetype i = 0; i < tags.size(); ++i) {
        menu->addItem(QString());
    }
}

void PanelFixture::unmark(const char *keyword) const
{
    if (ppd_choice_t *choice = ppdFindMarkedChoice(host->ppd.get(), keyword)) {
        cupsArrayRemove(host->ppd->marked, choice);
        choice->marked = 0;
    }
}

#include "moc_PanelFixture.cpp"
