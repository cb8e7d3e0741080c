// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "host/PanelBundles.h"
#include "host/PanelTarget.h"
#include "host/ProblemReporter.h"

#include <QTabWidget>

#include <memory>

class PanelHost;
class QAbstractButton;

/**
 * A window with tabs, as the print dialog has them, for the panel of one printer.
 *
 * Throws std::runtime_error when the panel is not what it has to be.
 */
class PanelWindow
{
public:
    /// Shows the window, with no panel yet.
    PanelWindow(PanelTarget target, const PanelBundles &bundles);
    ~PanelWindow();

    Q_DISABLE_COPY_MOVE(PanelWindow)

    /**
     * Builds the panel and turns to its tab: with that the panel makes its view and sets its
     * controls.
     *
     * @param count the choice of "KvCutLabel" that the panel starts with; null for the default.
     */
    void open(const QString &count = {});

    /// Sets cut every with clicks, so that the panel has marked what the box shows.
    void setCutEvery(bool isOn);

    PanelHost &host() const { return *mHost; }
    /// The panel's button of that object name, which can be clicked.
    QAbstractButton &button(const QString &name) const;
    /// The picture of the strip.
    QWidget &preview() const;

private:
    void checkProblems() const;

    QString mProblems;
    ProblemReporter mReporter;
    const PanelBundles &mBundles;
    PanelTarget mTarget;
    QTabWidget mTabs;
    std::unique_ptr<PanelHost> mHost;
    std::unique_ptr<QWidget> mTab;
};
