// SPDX-License-Identifier: Apache-2.0

// The files of a bundle: Info.json, a form and a table of texts.

#include "printcore/Bundle.h"
#include "FuzzTarget.h"
#include "toolkit/NibLoader.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

namespace {
/// What stands between the files of an input.
constexpr char separator[] = "\n====\n";

class BundleFuzzer : public FuzzTarget
{
public:
    BundleFuzzer()
    {
        const bool isMade = QDir(mFolder.path()).mkpath(QStringLiteral("Contents/Resources"));
        expectRule(isMade, "a folder can be made");
    }

    /// @param input Info.json, the form and the table, as far as they are there.
    void run(const QByteArray &input) override
    {
        QByteArray rest = input;
        for (const char *file : {"Info.json", "Resources/OptionPDE.ui", "Resources/en.qm"}) {
            const auto end = rest.indexOf(separator);
            write(QLatin1String(file), withoutTable(end < 0 ? rest : rest.left(end)));
            rest = end < 0 ? QByteArray() : rest.mid(end + qsizetype(std::strlen(separator)));
        }
        openBundle();
        loadForm();
    }

private:
    /// Qt's reader of compiled tables looks wherever the offsets in them point to. Nobody can guard
    /// against that, but only root and the user can write the tables of a bundle that is loaded.
    static QByteArray withoutTable(const QByteArray &bytes)
    {
        const QByteArray magic = QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd");
        return bytes.startsWith(magic) ? bytes.left(magic.size()) : bytes;
    }

    void write(const QString &name, const QByteArray &bytes) const
    {
        QFile file(mFolder.filePath(QStringLiteral("Contents/") + name));
        expectRule(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
                   "a file can be written");
    }

    void openBundle() const
    {
        QString error;
        const auto bundle = Bundle::open(mFolder.path(), &error);
        expectRule((bundle == nullptr) != error.isNull(),
                   "a bundle is opened or told to be faulty");
        if (!bundle) {
            return;
        }
        bundle->setLanguages({QStringLiteral("en")});
        bundle->localizedStringForKey(QStringLiteral("OP_PANEL_NAME"));
        bundle->localizedStringForKey(QStringLiteral("RS_Labels"));
        bundle->problems();
    }

    void loadForm() const
    {
        QString error;
        const auto form = NibLoader::load(
            mFolder.filePath(QStringLiteral("Contents/Resources/OptionPDE.ui")), &error);
        expectRule((form == nullptr) != error.isNull(), "a form is loaded or told to be faulty");
    }

    QTemporaryDir mFolder{folderTemplate()};
};
} // namespace

KV_FUZZ_TARGET("bundle", BundleFuzzer)
