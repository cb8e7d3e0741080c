// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <memory>
#include <optional>
#include <vector>

class PDEPanelAutomation;
class QWidget;

/// The key of the summary's list of titles in the order of display.
inline const QString kSummaryDisplayOrder = QStringLiteral("Summary Display Order");

/// The name of the notification that the dialog posts when the user has picked another paper.
inline const QString kPaperDidChangeNotification =
    QStringLiteral("PMPrintDestinationPaperDidChangeNotification");

/// The dynamic property with which a panel's control names the PPD option that it sets: the dialog
/// then works the control, a button or a line edit, for choices that the user has made before. An
/// option that no control names has to be shown as it is marked in the PPD.
inline constexpr char kPPDOptionKeywordProperty[] = "PPDOptionKeyword";

/// What the print dialog asks of a panel.
class PDEPanel
{
public:
    virtual ~PDEPanel() = default;

    /// The panel's view, made on first use and owned by the panel; null when it cannot be made.
    virtual QWidget *panelView() = 0;
    /// The panel's name in the user's language, the title of its tab.
    virtual QString panelName() = 0;
    /// Which kind of panel it is, as a reverse domain name.
    virtual QString panelKind() = 0;
    /// The keywords of the PPD options that the panel sets; nothing when it sets none.
    virtual std::optional<QStringList> supportedPPDOptionKeys() = 0;

    /// The dialog's window is about to close.
    virtual void printWindowWillClose() = 0;
    /// The panel's tab is about to be seen.
    virtual void willShow() = 0;
    /// Whether the panel's tab may be left.
    virtual bool shouldHide() = 0;
    /// Whether the job may be printed.
    virtual bool shouldPrint() = 0;
    /// Whether the panel has help to offer.
    virtual bool shouldShowHelp() = 0;

    /// An option has a new choice (keywords), whoever chose it.
    virtual void PPDOptionKeyValueDidChange(const QString &key, const QString &ppdChoice) = 0;
    /// Shows the choices that are marked in the PPD. False with the reason in @p error.
    virtual bool restoreValuesAndReturnError(QString *error) = 0;
    /// Tells the dialog the choice of every option. False with the reason in @p error.
    virtual bool saveValuesAndReturnError(QString *error) = 0;

    /// The lines of the dialog's summary: a text for each title, and under kSummaryDisplayOrder
    /// the titles (QStringList) in order; nothing when the panel has no summary.
    virtual std::optional<QVariantMap> summaryInfo() = 0;

    /// What the panel offers to automation, owned by the panel; null for nothing.
    virtual PDEPanelAutomation *automation() { return nullptr; }
};

/// The panels that one call of a plug-in's built.
using PDEPanelList = std::vector<std::unique_ptr<PDEPanel>>;
