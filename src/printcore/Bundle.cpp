#include "printcore/Bundle.h"

#include "printcore/FileAccess.h"
#include "printcore/QtVersions.h"

#include <QDir>
#include <QFile>
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

/// Reads an array of file names; answers what is wrong with it.
QString readFileNames(const QJsonValue &entry, QStringList *names)
{
    if (!entry.isArray()) {
        return QStringLiteral("is no array");
    }
    const QJsonArray elements = entry.toArray();
    for (const QJsonValue element : elements) {
        const QString name = element.toString();
        if (!isFileName(name)) {
            return QStringLiteral("[%1] is no file name").arg(names->size());
        }
        names->append(name);
    }
    return {};
}

/// What is wrong with a file of resources; null when nothing is.
QString resourceFault(const QString &path)
{
    QString fault = accessFault(path);
    if (fault.isNull() && path.endsWith(kTableSuffix) && !StringTables::isTable(path)) {
        fault = QStringLiteral("is no string table");
    }
    return fault;
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
    QString fault = accessFault(infoPath);
    if (!fault.isNull()) {
        return fault;
    }
    QFile file(infoPath);
    if (!file.open(QIODevice::ReadOnly)) {
        return QStringLiteral("cannot be read: ") + file.errorString();
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &parseError);
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
    const QJsonValue names = info.value(resources);
    if (names.isUndefined()) {
        return complaint(resources, QStringLiteral("is missing"));
    }
    fault = readFileNames(names, &mDeclaredResources);
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

QString Bundle::libraryPath() const
{
    return mPath + QStringLiteral("/Contents/Linux/") + mLibrary;
}

QString Bundle::resourcePath() const
{
    return mPath + QStringLiteral("/Contents/Resources");
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
    mTables.load(resourcePath(), languages);
}

QStringList Bundle::problems() const
{
    const QString bundleName = QFileInfo(mPath).fileName();
    const QString folderFault = accessFault(resourcePath(), FileAccess::EnterFolder);
    if (!mDeclaredResources.isEmpty() && !folderFault.isNull()) {
        return {QStringLiteral("%1: Contents/Resources %2").arg(bundleName, folderFault)};
    }
    QStringList names = mDeclaredResources + mTables.unreadable();
    names.removeDuplicates();
    QStringList faults;
    QHash<QString, QStringList> faultyFiles;
    for (const QString &name : std::as_const(names)) {
        const QString fault = resourceFault(resourcePath() + u'/' + name);
        if (!fault.isNull()) {
            faults.append(fault);
            faultyFiles[fault].append(name);
        }
    }
    faults.removeDuplicates();
    QStringList problems;
    for (const QString &fault : std::as_const(faults)) {
        problems.append(
            QStringLiteral("%1: %2 %3").arg(bundleName, firstOf(faultyFiles.value(fault)), fault));
    }
    return problems;
}
