// SPDX-License-Identifier: Apache-2.0
#include "printcore/Bundle.h"

#include "printcore/CheckedFile.h"
#include "printcore/QtVersions.h"
#include "printcore/ResourceLimits.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <utility>

namespace {
constexpr char kDefaultTable[] = "Localizable";
const QLatin1String kTableSuffix(".qm");
constexpr const char *kImageTypes[] = {"png", "svg", "jpg", "bmp", "gif", "webp"};

/// Whether the name stays in the folder that it is looked up in.
bool isFileName(const QString &name)
{
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/') &&
           !name.contains(QChar(u'\0'));
}

QString fileIn(const QString &folder, const QString &name)
{
    if (!isFileName(name)) {
        return {};
    }
    const QString path = folder + u'/' + name;
    return QFileInfo(path).isFile() ? path : QString();
}

/// What is wrong with a file of the resources; null when nothing is.
QString resourceFault(const CheckedFile &resources, const QString &name)
{
    CheckedFile file = resources.file(name);
    if (!file.fault().isNull() || !name.endsWith(kTableSuffix)) {
        return file.fault();
    }
    const QByteArray table = file.read(ResourceLimits::kTableSize);
    return !file.fault().isNull() || StringTables::isTable(table)
               ? file.fault()
               : QStringLiteral("is no string table");
}

/// The first of some files, and how many are like it.
QString firstOf(const QStringList &names)
{
    if (names.size() == 1) {
        return names.first();
    }
    return QStringLiteral("%1, like %2,")
        .arg(names.first(),
             names.size() == 2 ? names.last() : QStringLiteral("%1 others").arg(names.size() - 1));
}
} // namespace

Bundle::Bundle() = default;
Bundle::~Bundle() = default;

std::shared_ptr<Bundle> Bundle::open(const QString &path, QString *error)
{
    std::shared_ptr<Bundle> bundle(new Bundle);
    bundle->mPath = QDir::cleanPath(QDir(path).absolutePath());
    const QString infoPath = bundle->mPath + QStringLiteral("/Contents/Info.json");
    const QString fault = bundle->readInfo(infoPath);
    if (!fault.isNull()) {
        if (error) {
            *error = infoPath + QStringLiteral(": ") + fault;
        }
        return nullptr;
    }
    bundle->setLanguages(StringTables::usersLanguages());
    return bundle;
}

QString Bundle::readInfo(const QString &infoPath)
{
    CheckedFile file = CheckedFile::trusted(infoPath, FileUse::Read, mPath);
    const QByteArray info = file.read(ResourceLimits::kInfoSize);
    if (!file.fault().isNull()) {
        return file.fault();
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(info, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        return QStringLiteral("malformed JSON at offset %1: %2")
            .arg(parseError.offset)
            .arg(parseError.errorString());
    }
    if (!document.isObject()) {
        return QStringLiteral("is no JSON object");
    }
    return readEntries(document.object());
}

QString Bundle::readEntries(const QJsonObject &info)
{
    static const struct
    {
        QLatin1String name;
        QString Bundle::*field;
    } kTexts[] = {
        {QLatin1String("identifier"), &Bundle::mIdentifier},
        {QLatin1String("version"), &Bundle::mVersion},
        {QLatin1String("principalClass"), &Bundle::mPrincipalClass},
    };
    const auto complaint = [](QLatin1String entry, const QString &what) {
        return QStringLiteral("the entry \"%1\" %2").arg(entry, what);
    };

    for (const auto &text : kTexts) {
        const QJsonValue value = info.value(text.name);
        if (value.isUndefined()) {
            return complaint(text.name, QStringLiteral("is missing"));
        }
        this->*text.field = value.toString();
        if ((this->*text.field).isEmpty()) {
            return complaint(text.name, QStringLiteral("is no text"));
        }
    }
    const QLatin1String libraries("libraries");
    QString fault = readLibrary(info.value(libraries));
    if (!fault.isNull()) {
        return complaint(libraries, fault);
    }

    const QLatin1String resources("resources");
    fault = readResources(info.value(resources));
    return fault.isNull() ? QString() : complaint(resources, fault);
}

QString Bundle::readLibrary(const QJsonValue &libraries)
{
    if (libraries.isUndefined()) {
        return QStringLiteral("is missing");
    }
    if (!libraries.isObject()) {
        return QStringLiteral("is no object");
    }
    const QString ourQt = QStringLiteral("qt%1").arg(QT_VERSION_MAJOR);
    const QJsonObject byVersion = libraries.toObject();
    if (!byVersion.contains(ourQt)) {
        return QStringLiteral("has none for Qt %1").arg(QT_VERSION_MAJOR);
    }
    mLibrary = byVersion.value(ourQt).toString();
    return isFileName(mLibrary) ? QString()
                                : QStringLiteral("gives no file name for \"%1\"").arg(ourQt);
}

QString Bundle::readResources(const QJsonValue &resources)
{
    if (resources.isUndefined()) {
        return QStringLiteral("is missing");
    }
    if (!resources.isArray()) {
        return QStringLiteral("is no array");
    }
    const QJsonArray names = resources.toArray();
    for (const QJsonValue element : names) {
        if (mDeclaredResources.size() == ResourceLimits::kNames) {
            mExcess =
                QStringLiteral("\"resources\" has %1 names: those after the first %2 are left out")
                    .arg(names.size())
                    .arg(ResourceLimits::kNames);
            break;
        }
        const QString name = element.toString();
        if (!isFileName(name)) {
            return QStringLiteral("[%1] is no file name").arg(mDeclaredResources.size());
        }
        mDeclaredResources.append(name);
    }
    return {};
}

QString Bundle::libraryPath() const
{
    return mPath + QStringLiteral("/Contents/Linux/") + mLibrary;
}

QString Bundle::resourcePath() const
{
    return mPath + QStringLiteral("/Contents/Resources");
}

CheckedFile Bundle::resources() const
{
    return CheckedFile::trusted(resourcePath(), FileUse::Enter, mPath);
}

QString Bundle::pathForResource(const QString &name, const QString &type) const
{
    if (name.isEmpty()) {
        return {};
    }
    return fileIn(resourcePath(), type.isEmpty() ? name : name + u'.' + type);
}

QString Bundle::pathForImageResource(const QString &name) const
{
    for (const char *type : kImageTypes) {
        QString path = pathForResource(name, QString::fromLatin1(type));
        if (!path.isNull()) {
            return path;
        }
    }
    return {};
}

QString Bundle::localizedStringForKey(const QString &key, const QString &value,
                                      const QString &table) const
{
    QString text = mTables.text(table.isNull() ? QString::fromLatin1(kDefaultTable) : table, key);
    if (!text.isNull()) {
        return text;
    }
    return value.isNull() ? key : value;
}

void Bundle::setLanguages(const QStringList &languages)
{
    const CheckedFile folder = resources();
    mTables.load(
        [&folder](const QString &name) {
            CheckedFile file = folder.file(name);
            const QByteArray table = file.read(ResourceLimits::kTableSize);
            return file.isMissing() || file.fault().isNull() ? table : QByteArray("");
        },
        languages);
}

QStringList Bundle::problems() const
{
    const QString bundleName = QFileInfo(mPath).fileName();
    const CheckedFile folder = resources();
    if (!mDeclaredResources.isEmpty() && !folder.fault().isNull()) {
        return {QStringLiteral("%1: Contents/Resources %2").arg(bundleName, folder.fault())};
    }
    QStringList names = mDeclaredResources + mTables.unreadable();
    names.removeDuplicates();
    QStringList faults;
    QHash<QString, QStringList> faultyFiles;
    for (const QString &name : std::as_const(names)) {
        const QString fault = resourceFault(folder, name);
        if (!fault.isNull()) {
            faults.append(fault);
            faultyFiles[fault].append(name);
        }
    }
    faults.removeDuplicates();
    QStringList problems;
    if (!mExcess.isNull()) {
        problems.append(QStringLiteral("%1: Contents/Info.json: %2").arg(bundleName, mExcess));
    }
    for (const QString &fault : std::as_const(faults)) {
        problems.append(
            QStringLiteral("%1: %2 %3").arg(bundleName, firstOf(faultyFiles.value(fault)), fault));
    }
    return problems;
}
