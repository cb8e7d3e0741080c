// SPDX-License-Identifier: Apache-2.0
#include "cutoption/OptionOutlets.h"

#include "cutoption/OptionCatalogue.h"

#include <QDebug>
#include <QSet>

namespace {
void dropStranger(QWidget *control, const QMetaObject &wanted)
{
    static QSet<QString> told;
    control->hide();
    const QString problem =
        QStringLiteral("OptionPDE.ui: %1 is a %2 where a %3 is needed; it is not shown")
            .arg(control->objectName(), QLatin1String(control->metaObject()->className()),
                 QLatin1String(wanted.className()));
    if (!told.contains(problem)) {
        told.insert(problem);
        qWarning().noquote() << problem;
    }
}

template <typename Control>
void find(QWidget *nib, const char *name, QPointer<Control> &outlet)
{
    outlet = nib->findChild<Control *>(QLatin1String(name));
    auto *stranger = outlet ? nullptr : nib->findChild<QWidget *>(QLatin1String(name));
    if (stranger) {
        dropStranger(stranger, Control::staticMetaObject);
    }
}
} // namespace

void OptionOutlets::findIn(QWidget *nib)
{
    find(nib, "mOptionDummyView", mOptionDummyView);
    find(nib, "mOptionPopUpButton", mOptionPopUpButton);
    for (const OptionRow &row : OptionCatalogue::rows) {
        find(nib, row.outlet, this->*row.checkBox);
    }
    find(nib, "mCutEveryTxBx", mCutEveryTxBx);
    find(nib, "mCutEveryStpr", mCutEveryStpr);
    find(nib, "mCutEveryStr", mCutEveryStr);
}

Strip OptionOutlets::strip() const
{
    return Strip::of({.cutEvery = mCutEveryChkBx.data(),
                      .cutAtEnd = mCutAndEndChkBx.data(),
                      .mirror = mMirrorPrintChkBx.data(),
                      .autoCut = mAutoCutChkBx.data(),
                      .halfCut = mHalfCutChkBx.data(),
                      .chainPrint = mChainPrintChkBx.data(),
                      .specialTape = mSpecialTapeChkBx.data(),
                      .removeBlkSpace = mRemoveBlkSpaceChkBx.data(),
                      .cutMark = mCutMarkChkBx.data()});
}
