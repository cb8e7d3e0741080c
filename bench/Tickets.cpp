// SPDX-License-Identifier: Apache-2.0
#include "bench/Tickets.h"

#include "bench/Measurement.h"
#include "printcore/PropertyList.h"

#include <QVariantMap>
#include <QXmlStreamReader>

#include <stdexcept>

namespace {
constexpr const char *ticketIsRead = "ticket of 1 KB is read";
constexpr const char *ticketIsWalked = "ticket of 1 KB is walked through";

/// A ticket of 1 KB, with the two entries that the panel reads among others.
QByteArray ticket()
{
    QVariantMap entries{{QStringLiteral("MqPaperName2"), QStringLiteral("HS058")},
                        {QStringLiteral("MqRVMultiColor"), QStringLiteral("MultiColorBlackRed")}};
    for (int number = 0; PropertyList::write(entries).size() < 1000; ++number) {
        entries.insert(QStringLiteral("MqEntry%1").arg(number), number);
    }
    return PropertyList::write(entries);
}

void readTicket(benchmark::State &state)
{
    const QByteArray data = ticket();
    for ([[maybe_unused]] auto _ : state) {
        if (!PropertyList::read(data).isValid()) {
            throw std::runtime_error("the ticket cannot be read");
        }
    }
}

void walkThroughTicket(benchmark::State &state)
{
    const QByteArray data = ticket();
    for ([[maybe_unused]] auto _ : state) {
        QXmlStreamReader xml(data);
        while (!xml.atEnd()) {
            xml.readNext();
        }
    }
}
} // namespace

void Tickets::add()
{
    Measurement::addShort(ticketIsRead, readTicket);
    Measurement::addShort(ticketIsWalked, walkThroughTicket);
}

ComparisonGroup Tickets::comparisons()
{
    return {"Tickets", {{ticketIsRead, ticketIsWalked, Aim()}}};
}
