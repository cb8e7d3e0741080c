// SPDX-License-Identifier: Apache-2.0
#include "dialog/SummaryTab.h"

#include "host/HostText.h"
#include "host/PanelHost.h"

#include <QHeaderView>

SummaryTab::SummaryTab(PanelHost &host, QWidget *parent)
    : QTreeWidget(parent)
    , mHost(&host)
{
    setObjectName(QStringLiteral("panelSummary"));
    const HostText texts;
    setWindowTitle(texts.text("Summary"));
    setAccessibleName(windowTitle());
    setHeaderLabels({texts.text("Option"), texts.text("Choice")});
    setRootIsDecorated(false);
    setSelectionMode(NoSelection);
    setUniformRowHeights(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    // Panels tell of a change before they have taken it in.
    connect(&host, &PanelHost::summaryChanged, this, &SummaryTab::refresh, Qt::QueuedConnection);
    refresh();
}

void SummaryTab::refresh()
{
    if (!mHost) {
        return;
    }
    clear();
    const auto lines = mHost->summary();
    for (const PanelHost::SummaryLine &line : lines) {
        addTopLevelItem(new QTreeWidgetItem({line.title, line.value}));
    }
}

#include "moc_SummaryTab.cpp"
