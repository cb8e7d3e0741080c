// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "cups/JobOptions.h"
#include "cups/KeywordMap.h"
#include "cups/PPDFile.h"
#include "printcore/Paper.h"
#include "printcore/PrintSettings.h"
#include "printcore/Printer.h"

#include <memory>
#include <optional>

class PrinterMaps;
class SchedulerConnection;
struct PrinterRecord;

/// The printer and paper that the panels of a dialog are for.
struct PanelTarget
{
    /**
     * A PPD without a queue, on the PPD's default paper.
     *
     * @param error set as for PPDFile::open() when there is no result.
     */
    static std::optional<PanelTarget> ofPPD(const QString &path, PPDFile::Marks marks,
                                            QString *error);

    /// A PPD without a queue that has been opened, likewise.
    static PanelTarget of(std::unique_ptr<PPDFile> ppd);

    /**
     * A queue with the options that its user has saved.
     *
     * @param name of the queue or of an instance of it, not empty.
     * @param error set when there is no result because the scheduler does not answer or has no such
     *        queue, or because the PPD is broken; left null when the queue just has no PPD.
     */
    static std::optional<PanelTarget> ofQueue(SchedulerConnection &scheduler, const QString &name,
                                              PPDFile::Marks marks, QString *error);

    /**
     * A printer with the options that its user has saved, all of them marked.
     *
     * @param error set when there is no result because something is wrong with the record or the
     *        PPD; left null when the printer just has no PPD.
     */
    static std::optional<PanelTarget> of(const PrinterRecord &printer, PPDFile::Marks marks,
                                         QString *error);

    /**
     * Adds the panels' options to a PPD that lacks them, when there is a map for it. To be used
     * before anything is marked but what the target was made with.
     *
     * @return what is wrong with the map; null when nothing is.
     */
    QString use(const PrinterMaps &maps);

    /// Marks the printer's own options among these, and answers all of them in the panels' words;
    /// without a map the options themselves, with nothing marked.
    JobOptions take(const JobOptions &options);

    /// The printer's, with the choices marked that the panels start from; never null.
    std::unique_ptr<PPDFile> ppd;
    Printer printer;
    Paper paper;
    PrintSettings settings;
    /// The options that the queue's jobs start from, PrintQueue::jobOptions().
    JobOptions savedOptions;
    /// What the panels' options in the PPD stand for; nothing when they are the printer's own.
    std::optional<KeywordMap> map;
};
