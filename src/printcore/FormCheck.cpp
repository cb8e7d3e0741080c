#include "printcore/FormCheck.h"

#include "printcore/ResourceLimits.h"

#include <QXmlStreamReader>

namespace {
/// Counts what has been read of a form up to now.
class FormCount
{
public:
    /// Why the element that begins here is one too many; null when it is not.
    QString begin(const QXmlStreamReader &form)
    {
        if (++mDepth > ResourceLimits::kFormDepth) {
            return tooMany("elements within each other", ResourceLimits::kFormDepth);
        }
        if (++mElements > ResourceLimits::kFormElements) {
            return tooMany("elements", ResourceLimits::kFormElements);
        }
        if (form.name() == QLatin1String("widget") && ++mWidgets > ResourceLimits::kFormWidgets) {
            return tooMany("widgets", ResourceLimits::kFormWidgets);
        }
        if (form.name() == QLatin1String("pixmap") || form.name() == QLatin1String("iconset")) {
            return QStringLiteral("there is a picture, which would be read from a file");
        }
        return {};
    }
    void end() { --mDepth; }

private:
    static QString tooMany(const char *what, int limit)
    {
        return QStringLiteral("there are more than %1 %2").arg(limit).arg(QLatin1String(what));
    }

    int mDepth = 0;
    int mElements = 0;
    int mWidgets = 0;
};
} // namespace

QString formFault(const QByteArray &form)
{
    FormCount count;
    QXmlStreamReader reader(form);
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            const QString fault = count.begin(reader);
            if (!fault.isNull()) {
                reader.raiseError(fault);
            }
        } else if (reader.isEndElement()) {
            count.end();
        }
    }
    return reader.hasError() ? QStringLiteral("is no form: line %1: %2")
                                   .arg(reader.lineNumber())
                                   .arg(reader.errorString())
                             : QString();
}
