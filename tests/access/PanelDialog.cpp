// SPDX-License-Identifier: Apache-2.0
#include "PanelDialog.h"

#include <QApplication>
#include <QTabWidget>

PanelDialog::PanelDialog(PanelFixture &fixture)
    : mPrinter()
    , mDialog(&mPrinter)
    , mFixture(fixture)
{
    fixture.build();
    fixture.panel->supportedPPDOptionKeys();
    QWidget *view = fixture.panel->panelView();
    view->setWindowTitle(fixture.panel->panelName());
    mDialog.setOptionTabs({view});
    fixture.panel->willShow();
    mDialog.show();
    auto *tabs = mDialog.findChild<QTabWidget *>();
    if (tabs) {
        for (QWidget *parent = tabs; parent; parent = parent->parentWidget()) {
            parent->show();
        }
        tabs->setCurrentWidget(view);
    }
    mIsReady = tabs && QTest::qWaitForWindowActive(&mDialog) && view->isVisible();
}

PanelDialog::~PanelDialog()
{
    // The panel owns its view.
    mFixture.panel->kPDEView->setParent(nullptr);
}

QList<QWidget *> PanelDialog::tabOrder() const
{
    QList<QWidget *> order;
    QWidget *view = mFixture.panel->kPDEView;
    mFixture.panel->box(OptionCatalogue::CutMark)->setFocus(Qt::TabFocusReason);
    for (QWidget *at = QApplication::focusWidget(); at && view->isAncestorOf(at);
         at = QApplication::focusWidget()) {
        if (order.contains(at)) {
            break;
        }
        order.append(at);
        QTest::keyClick(at, Qt::Key_Tab);
    }
    return order;
}
