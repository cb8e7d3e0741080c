// SPDX-License-Identifier: Apache-2.0
#include "support/TestHost.h"

#include "ppd/TapeInfo.h"
#include "printcore/NotificationCenter.h"
#include "printcore/PropertyList.h"

TestHost::TestHost(PPDHandle openPPD, const QString &deviceURI)
    : ppd(std::move(openPPD))
    , format(Paper(QStringLiteral("Plain"), 100.0))
    , printer(Printer(QStringLiteral("test"), deviceURI))
{
}

void TestHost::willChangePPDOptionKeyValue(const QString &key, const QString &ppdChoice)
{
    told.append({key, ppdChoice});
    if (marks && ppd) {
        ppdMarkOption(ppd.get(), key.toUtf8().constData(), ppdChoice.toUtf8().constData());
    }
    if (panel) {
        panel->PPDOptionKeyValueDidChange(key, ppdChoice);
    }
}

void TestHost::setPaper(const QString &name, double height)
{
    format.setPaper(Paper(name, height));
}

void TestHost::changePaper(const QString &name, double height)
{
    setPaper(name, height);
    NotificationCenter::defaultCenter().postNotification(
        QStringLiteral("PMPrintDestinationPaperDidChangeNotification"), this);
}

void TestHost::setTicket(const QVariantMap &ticket)
{
    settings->setValue(kPrivateTicketKey, PropertyList::write(ticket));
}

QString TestHost::marked(const char *keyword) const
{
    const ppd_choice_t *choice = ppdFindMarkedChoice(ppd.get(), keyword);
    return choice ? QString::fromUtf8(choice->choice) : QString();
}

void TestHost::mark(const char *keyword, const char *choice)
{
    ppdMarkOption(ppd.get(), keyword, choice);
}

QList<Pair> TestHost::takeTold()
{
    return std::exchange(told, {});
}

std::shared_ptr<Bundle> testBundle()
{
    auto bundle = Bundle::open(QStringLiteral(KV_BUNDLE_DIR));
    if (bundle) {
        bundle->setLanguages({QStringLiteral("en")});
    }
    return bundle;
}
