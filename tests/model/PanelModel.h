// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "Job.h"
#include "View.h"

#include <QJsonArray>
#include <QStringList>

namespace model {

/**
 * The panel as its rules describe it: what each call and each use of a control makes of its
 * selections, its controls and the choices marked at the printer.
 */
class PanelModel
{
public:
    PanelModel(Job job, bool isOnUSB);

    // What the dialog calls.
    void loadView();
    void show();
    void save();
    void restore();
    void print();
    QStringList declareKeys();
    void takeBackChoice(const QString &keyword, const QString &choice);
    void changePaper(const JobPaper &paper);
    QJsonObject summary() const;

    // What the user does; each answers whether the control could be used.
    bool click(Option option);
    bool pick(int tag);
    bool type(const QString &text);
    bool step(int by);

    Job &job() { return mJob; }
    const Job &job() const { return mJob; }
    int tapeState() const { return mTapeState; }
    bool hasView() const { return mView.has_value(); }
    const View &view() const { return *mView; }
    bool isOnUSB() const { return mIsOnUSB; }

    /// Everything that can be seen of the panel.
    QJsonObject state() const;
    /// What the panel has told the dialog since the last call.
    QJsonArray takeEvents();

private:
    enum class TapeUse { First, Saving };

    void initialiseControls();
    void initialiseBox(Option option);
    void initialiseCount(const PrinterOption &option);
    void checkTape(TapeUse use);
    void saveOption(Option option);
    void saveAutoCutOfCutEvery();
    int indexToSave(Option option) const;
    int boxIndexUnlessSpecialTape(Option box) const;

    void tell(const QString &keyword, const QString &choice);
    void choose(int index, Option option, Option item);
    void reread(Option option);
    void refreshControls();
    void refresh(Option option);
    void refreshCount();
    void refreshBox(Option box, int index);
    void pushPreset();
    void applyRules();
    void applySpecialTapeRule(bool isFL);
    void applyCountRule();
    void setCountEnabled(bool isEnabled);
    void changeCount(qint32 value);

    QString summaryValue(Option option) const;
    QJsonObject selectionsToJson() const;
    QJsonObject marksToJson() const;

    Job mJob;
    bool mIsOnUSB;
    int mTapeState = 0;
    bool mIsInitialised = false;
    bool mHasDeclaredKeys = false;
    /// Each option's selection among its choices; -1 for none.
    std::array<int, optionCount> mSelection;
    /// The auto-cut choice that the cut-every box shows; -1 for none.
    int mAutoCutOfCutEvery = -1;
    std::optional<View> mView;
    QJsonArray mEvents;
};

/// The number that a text begins with, as far as 32 bits reach; 0 when it begins with none.
qint32 leadingNumber(const QString &text);

} // namespace model
