// SPDX-License-Identifier: Apache-2.0
#include "JobTicket.h"

#include <cups/cups.h>

#include <array>

namespace {
QString textOf(ipp_attribute_t *attribute)
{
    std::array<char, 1024> text = {};
    ippAttributeString(attribute, text.data(), text.size());
    return QString::fromUtf8(text.data());
}

ipp_t *askFor(int job)
{
    ipp_t *request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(job);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    return cupsDoRequest(CUPS_HTTP_DEFAULT, request, "/");
}
} // namespace

QStringList JobTicket::attributes(int job, const QString &beginning)
{
    QStringList all;
    ipp_t *response = askFor(job);
    for (ipp_attribute_t *attribute = ippFirstAttribute(response); attribute;
         attribute = ippNextAttribute(response)) {
        const QString name = QString::fromUtf8(ippGetName(attribute));
        if (name.startsWith(beginning)) {
            all.append(name + QLatin1Char('=') + textOf(attribute));
        }
    }
    ippDelete(response);
    all.sort();
    return all;
}
