// SPDX-License-Identifier: Apache-2.0
#include "dialog/SummaryTab.h"

#include "host/HostText.h"
#include "host/PanelHost.h"

#include <QHeaderView>
#include <QStyle>

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
    addConflict();
}

void SummaryTab::addConflict()
{
    const auto conflict = mHost->conflict({});
    if (!conflict) {
        return;
    }
    const auto textOf = [this](const PPDChoice &choice) {
        return QStringLiteral("%1: %2").arg(mHost->ppd().optionText(choice.key),
                                            mHost->ppd().choiceText(choice));
    };
    const QString choices =
        QStringLiteral("%1 – %2").arg(textOf(conflict->ofPanels), textOf(conflict->other));
    auto *line = new QTreeWidgetItem({HostText().text("Conflict"), choices});
    line->setIcon(0, style()->standardIcon(QStyle::SP_MessageBoxWarning));
    insertTopLevelItem(0, line);
}

#include "moc_SummaryTab.cpp"
