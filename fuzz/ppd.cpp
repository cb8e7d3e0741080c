// SPDX-License-Identifier: Apache-2.0

// PPDs: from the file through the panel, its view and its state to the options of the job.

#include "FuzzTarget.h"
#include "LightBundle.h"
#include "MemoryFile.h"
#include "cups/PPDPaper.h"
#include "host/PanelHost.h"
#include "host/ProblemReporter.h"
#include "kvprint/PPDRemarks.h"
#include "plugin/PDEPanelAutomation.h"

#include <QCryptographicHash>
#include <QSet>
#include <QWidget>

#include <span>

namespace {
/// How many of a PPD's papers are tried.
constexpr size_t mostPapers = 3;
/// How many descriptions of printers are kept in mind.
constexpr int mostDescriptions = 200'000;

void add(QCryptographicHash &hash, const char *text)
{
    hash.addData(QByteArrayView(text, qsizetype(qstrlen(text)) + 1));
}

void add(QCryptographicHash &hash, const ppd_option_t &option)
{
    add(hash, option.keyword);
    add(hash, option.text);
    add(hash, option.defchoice);
    for (const ppd_choice_t &choice : std::span(option.choices, size_t(option.num_choices))) {
        add(hash, choice.choice);
        add(hash, choice.text);
        add(hash, choice.marked ? "marked" : "");
    }
}

/// All that a panel reads of a PPD, as a hash: two PPDs with the same have the same panel.
QByteArray descriptionOf(ppd_file_t &ppd, const QStringList &keys)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    for (const QString &key : keys) {
        if (const ppd_option_t *option = ppdFindOption(&ppd, key.toUtf8().constData())) {
            add(hash, *option);
        }
    }
    for (const char *name : {"KvTapeType", "KvAutoCutObjHidden"}) {
        const ppd_attr_t *attribute = ppdFindAttr(&ppd, name, nullptr);
        add(hash, attribute && attribute->value ? attribute->value : "");
    }
    for (const ppd_size_t &size : std::span(ppd.sizes, size_t(ppd.num_sizes))) {
        add(hash, size.name);
        hash.addData(
            QByteArrayView(reinterpret_cast<const char *>(&size.length), sizeof size.length));
    }
    return hash.result();
}

class PPDFuzzer : public FuzzTarget
{
public:
    PPDFuzzer()
        : mReporter([](const QString &) {})
        , mBundles(PanelBundles::load(mBundle.folder(), mReporter))
    {
        expectRule(mBundles.size() == 1, "the bundle is loaded");
        mBundles.front()->setLanguages({QStringLiteral("en")});
    }

    void run(const QByteArray &input) override
    {
        mFile.write(input);
        QString error;
        auto target = PanelTarget::ofPPD(mFile.path(), PPDFile::Marks::Defaults, &error);
        expectRule(target.has_value() == error.isNull(), "a PPD is opened or told to be faulty");
        if (!target) {
            return;
        }
        ProblemReporter reporter([](const QString &) {});
        PanelHost host(std::move(*target), mBundles, reporter);
        checkJob(host);
        host.summary();
        const QStringList remarks = remarksOnPPD(host.ppd(), host.keys());
        expectRule(!remarks.contains(QString()), "a remark says something");
        // The view takes longer than all the rest together.
        if (isNew(descriptionOf(*host.ppd().get(), host.keys()))) {
            tryView(host);
        }
    }

private:
    bool isNew(const QByteArray &description)
    {
        if (mDescriptions.contains(description)) {
            return false;
        }
        if (mDescriptions.size() >= mostDescriptions) {
            mDescriptions.clear();
        }
        mDescriptions.insert(description);
        return true;
    }

    static void tryView(PanelHost &host)
    {
        for (PDEPanel *panel : host.panels()) {
            host.view(*panel);
            host.show(*panel);
            checkJob(host);
            panel->automation()->state();
        }
        tryPapers(host);
        host.summary();
    }

    static void tryPapers(PanelHost &host)
    {
        const ppd_file_t &ppd = *host.ppd().get();
        const std::span sizes(ppd.sizes, size_t(ppd.num_sizes));
        for (const ppd_size_t &size : sizes.first(std::min(sizes.size(), mostPapers))) {
            host.setPaper(paperNamed(host.ppd(), QString::fromUtf8(size.name)));
            checkJob(host);
        }
    }

    static void checkJob(PanelHost &host)
    {
        expectRule(host.accept(), "no panel refuses the job");
        const JobOptions options = host.jobOptions();
        for (const auto &[key, choice] : options.pairs()) {
            expectRule(host.ppd().hasChoice(key, choice), "the job has choices of the PPD alone");
        }
    }

    LightBundle mBundle;
    ProblemReporter mReporter;
    PanelBundles mBundles;
    MemoryFile mFile;
    QSet<QByteArray> mDescriptions;
};
} // namespace

KV_FUZZ_TARGET("ppd", PPDFuzzer)
