// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QPointer>
#include <QTreeWidget>

class PanelHost;

/// The tab that lists the summary lines, kept current.
class SummaryTab : public QTreeWidget
{
    Q_OBJECT

public:
    explicit SummaryTab(PanelHost &host, QWidget *parent = nullptr);

    /// Reads the lines anew.
    void refresh();

private:
    /// Adds a line in front of the others when the printer cannot combine what is chosen.
    void addConflict();

    QPointer<PanelHost> mHost;
};
