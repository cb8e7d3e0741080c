// SPDX-License-Identifier: Apache-2.0
#include "Ticket.h"

namespace model {
namespace {
QByteArray propertyList(const QString &value)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">" +
           value.toUtf8() + "</plist>\n";
}

QString entry(const char *key, const QString &element)
{
    return u"<key>%1</key>%2"_s.arg(QLatin1String(key), element);
}

QString stringEntry(const char *key, const std::optional<QString> &text)
{
    return text ? entry(key, u"<string>%1</string>"_s.arg(text->toHtmlEscaped())) : QString();
}

QByteArray ticketData(const Ticket &ticket)
{
    switch (ticket.kind) {
    case Ticket::Kind::List:
        return propertyList(u"<array><string>HS058</string></array>"_s);
    case Ticket::Kind::NoPropertyList:
        return "HS058";
    case Ticket::Kind::Dictionary:
        break;
    }
    return propertyList(u"<dict>%1%2</dict>"_s.arg(stringEntry("MqPaperName2", ticket.paperName),
                                                   stringEntry("MqRVMultiColor", ticket.colour)));
}
} // namespace

QString Ticket::readablePaperName() const
{
    return kind == Kind::Dictionary ? paperName.value_or(QString()) : QString();
}

QByteArray settingsFile(const std::optional<Ticket> &ticket)
{
    QString entries = stringEntry("com.apple.print.PrintSettings.PMJobName", u"Job"_s);
    if (ticket) {
        entries +=
            entry("com.korvane.print.PrintSettingsTicket.MqE5",
                  u"<data>%1</data>"_s.arg(QString::fromLatin1(ticketData(*ticket).toBase64())));
    }
    return propertyList(u"<dict>%1</dict>"_s.arg(entries));
}

} // namespace model
