// SPDX-License-Identifier: Apache-2.0
#include "bench/PanelWindow.h"

#include "dialog/PanelTab.h"
#include "host/PanelHost.h"

#include <QAbstractButton>
#include <QCoreApplication>

#include <stdexcept>

PanelWindow::PanelWindow(PanelTarget target, const PanelBundles &bundles)
    : mReporter([this](const QString &problem) { mProblems += problem + u'\n'; })
    , mBundles(bundles)
    , mTarget(std::move(target))
{
    mTabs.addTab(new QWidget, QStringLiteral("Copies"));
    mTabs.show();
    QCoreApplication::processEvents();
}

PanelWindow::~PanelWindow()
{
    mTab.reset();
}

void PanelWindow::open(const QString &count)
{
    mProblems += mTarget.use(mBundles.maps());
    mHost = std::make_unique<PanelHost>(std::move(mTarget), mBundles, mReporter);
    if (!count.isNull()) {
        mHost->request(QStringLiteral("KvCutLabel"), count);
    }
    if (!mHost->panels().empty()) {
        mTab = std::make_unique<PanelTab>(*mHost, *mHost->panels().front());
        mTabs.addTab(mTab.get(), mTab->windowTitle());
        mTabs.setCurrentWidget(mTab.get());
    }
    checkProblems();
}

void PanelWindow::setCutEvery(bool isOn)
{
    QAbstractButton &box = button(QStringLiteral("mCutEveryChkBx"));
    // The box may start ticked while its option is off.
    if (box.isChecked() == isOn) {
        box.click();
    }
    box.click();
}

void PanelWindow::checkProblems() const
{
    if (!mProblems.isEmpty()) {
        throw std::runtime_error(mProblems.toStdString());
    }
    if (!preview().isVisible()) {
        throw std::runtime_error("the panel is not shown");
    }
}

QAbstractButton &PanelWindow::button(const QString &name) const
{
    auto *button = mTabs.findChild<QAbstractButton *>(name);
    if (!button || !button->isVisible() || !button->isEnabled()) {
        throw std::runtime_error("cannot click " + name.toStdString());
    }
    return *button;
}

QWidget &PanelWindow::preview() const
{
    for (QWidget *widget : mTabs.findChildren<QWidget *>()) {
        if (widget->inherits("OptionView13_v400_")) {
            return *widget;
        }
    }
    throw std::runtime_error("the panel has no preview");
}
