// SPDX-License-Identifier: Apache-2.0
#include "printcore/FormCheck.h"

#include "printcore/ProblemLine.h"
#include "printcore/ResourceLimits.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <iterator>

namespace {
/// Properties that name files, or have texts taken for markup that does.
constexpr const char *fileProperties[] = {"markdown", "source", "styleSheet", "textFormat"};

/// Whether Qt, which repeats what it makes nothing of, would break a line of its own by it.
bool hasControlCharacters(const QString &name)
{
    return asOneLine(name) != name;
}

QString faultOfAttribute(const QString &element, const QXmlStreamAttribute &attribute)
{
    const QString value = attribute.value().toString();
    if (hasControlCharacters(value)) {
        return QStringLiteral("there are control characters in the attribute \"%1\"")
            .arg(attribute.name().toString());
    }
    const bool isFile =
        element == QLatin1String("property") &&
        std::any_of(std::begin(fileProperties), std::end(fileProperties),
                    [&value](const char *name) { return value == QLatin1String(name); });
    return isFile ? QStringLiteral("there is the property \"%1\", which may have files read")
                        .arg(value)
                  : QString();
}

/// Counts and checks what is read of a form.
class FormContents
{
public:
    /// Why the element that begins here must not be in a form; null when it may.
    QString begin(const QXmlStreamReader &form)
    {
        if (++mDepth > ResourceLimits::kFormDepth) {
            return tooMany("elements within each other", ResourceLimits::kFormDepth);
        }
        if (++mElements > ResourceLimits::kFormElements) {
            return tooMany("elements", ResourceLimits::kFormElements);
        }
        // As Qt compares them.
        const QString element = form.name().toString().toCaseFolded();
        if (element == QLatin1String("widget") && ++mWidgets > ResourceLimits::kFormWidgets) {
            return tooMany("widgets", ResourceLimits::kFormWidgets);
        }
        if (element == QLatin1String("pixmap") || element == QLatin1String("iconset")) {
            return QStringLiteral("there is a picture, which would be read from a file");
        }
        mIsText = element == QLatin1String("string");
        return mIsText ? QString() : faultOfAttributes(element, form.attributes());
    }
    /// Why the text must not be in a form; null when it may.
    QString text(const QString &text) const
    {
        if (text.contains(QLatin1Char('<'))) {
            return QStringLiteral("there is a \"<\" in a text: markup may have files read");
        }
        return mIsText || !hasControlCharacters(text.trimmed())
                   ? QString()
                   : QStringLiteral("there are control characters in a name");
    }
    void end() { --mDepth; }

private:
    static QString faultOfAttributes(const QString &element, const QXmlStreamAttributes &attributes)
    {
        QString fault;
        for (const QXmlStreamAttribute &attribute : attributes) {
            fault = fault.isNull() ? faultOfAttribute(element, attribute) : fault;
        }
        return fault;
    }

    static QString tooMany(const char *what, int limit)
    {
        return QStringLiteral("there are more than %1 %2").arg(limit).arg(QLatin1String(what));
    }

    int mDepth = 0;
    int mElements = 0;
    int mWidgets = 0;
    /// Whether texts are what a user sees, and not names.
    bool mIsText = false;
};
} // namespace

QString formFault(const QByteArray &form)
{
    // Every view of a panel is made of the same form.
    thread_local QByteArray sound;
    if (!form.isEmpty() && form == sound) {
        return {};
    }
    FormContents contents;
    QXmlStreamReader reader(form);
    while (!reader.atEnd()) {
        reader.readNext();
        QString fault;
        if (reader.isStartElement()) {
            fault = contents.begin(reader);
        } else if (reader.isEndElement()) {
            contents.end();
        } else if (reader.isCharacters()) {
            fault = contents.text(reader.text().toString());
        }
        if (!fault.isNull()) {
            reader.raiseError(fault);
        }
    }
    if (reader.hasError()) {
        return QStringLiteral("is no form: line %1: %2")
            .arg(reader.lineNumber())
            .arg(reader.errorString());
    }
    sound = QByteArray(form.constData(), form.size());
    return {};
}
