// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"
#include "cups/KeywordTable.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

class PPDFile;

/**
 * How the options of a printer's PPD stand for those of the panels.
 *
 * A map adds the panels' options to a PPD that lacks them, and translates their choices in both
 * directions by the rows of its tables. It is a JSON file: see docs/keyword-maps.md.
 */
class KeywordMap
{
public:
    /// An option that is added to the PPD.
    struct Option
    {
        QString key;
        /// As in a PPD: in English, and a key of the panel's translations.
        QString text;
        /// Keywords with the text behind a slash: "ON/On".
        QStringList choices;
        /// The option without which this one is left out; empty for one that a table decides.
        QString with;

        /// The choices without their texts.
        QStringList keywords() const;
    };

    /**
     * Reads a map.
     *
     * @param fault set to the line and the reason when there is no result.
     */
    static std::optional<KeywordMap> read(const QByteArray &json, QString *fault);

    /// The file that the map is from, for messages; null for none.
    const QString &name() const { return mName; }
    void setName(const QString &name) { mName = name; }

    /**
     * The map for a PPD: with the choices that the PPD has, and with the options that can then be
     * decided in every combination.
     *
     * Nothing when the map is not for that PPD, when nothing is left of it, or when the PPD has an
     * option of the panels itself.
     *
     * @param reason set when there is no result, unless it is null.
     */
    std::optional<KeywordMap> fittedTo(const PPDFile &ppd, QString *reason = nullptr) const;

    /// How many conditions a PPD has to meet: of two maps, the one with more is the more
    /// particular.
    int conditions() const { return int(mAttributes.size() + mRequiredOptions.size()); }

    /// The lines to add to the PPD, with the defaults that its own stand for.
    QByteArray ppdLines(const PPDFile &ppd) const;

    /// Takes the options that the map adds, which the printer does not know, out of a job's.
    void removeAdded(JobOptions &options) const;

    /// The keywords of the printer's options that are decided by the panels.
    QStringList printerKeys() const;
    /// The printer's options by which one of the panels' is decided; none when the map lacks it.
    QStringList sourcesOf(const QString &key) const;
    /// Of a fitted map, the printer's options that lack the choices for one of the panels', which
    /// was left out; none for any other.
    QStringList sourcesMissedBy(const QString &key) const { return mLeftOut.value(key); }

    /// What the map names and a PPD lacks: options, choices ("KEY=CHOICE") and attributes.
    QStringList namesMissingIn(const PPDFile &ppd) const;
    /// The text of a PPD that has all that the map names, and nothing else.
    QByteArray completePPD() const;

    /// The panels' choices that stand for choices of the printer's options.
    JobOptions panelChoices(const JobOptions &printer) const;

    /**
     * The printer's choices that stand for choices of the panels, whose other options stay as they
     * are.
     *
     * @param former the printer's choices so far, which are kept where they stand for the same, or
     *        are named by no row and the panels' choices have not changed.
     */
    JobOptions printerChoices(const JobOptions &panel, const JobOptions &former) const;

    /**
     * Options of a job in the panels' words: with what the printer's options among them stand for,
     * unless they contain the panels' own.
     *
     * @param printer the printer's choices, those of the options included.
     */
    JobOptions inPanelWords(const JobOptions &options, const JobOptions &printer) const;

    /// The marked choices of the printer's options.
    JobOptions markedIn(const PPDFile &ppd) const;

    const QList<KeywordTable> &tables() const { return mTables; }
    const QList<Option> &options() const { return mOptions; }

private:
    friend class KeywordMapReader;

    /// Which condition the PPD does not meet; null when it meets all.
    QString misfit(const PPDFile &ppd) const;
    /// Leaves out of the tables what the PPD has no choices for; false when nothing is left.
    bool keepTablesOf(const PPDFile &ppd);
    /// Leaves out the options that no table decides.
    void keepDecidedOptions();
    /// The printer's options and their choices that the rows name.
    QMap<QString, QStringList> namedChoices() const;

    QString mName;
    QStringList mRequiredOptions;
    QMap<QString, QString> mAttributes;
    QString mSeries;
    bool mHasAutoCutBox = false;
    QList<Option> mOptions;
    QList<KeywordTable> mTables;
    QMap<QString, QStringList> mLeftOut;
};
