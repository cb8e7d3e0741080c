// SPDX-License-Identifier: Apache-2.0
#include "kvprint/PPDRemarks.h"

#include "cups/PPDFile.h"
#include "cups/PanelKeywords.h"
#include "ppd/PaperClass.h"
#include "printcore/UTF8.h"

#include <algorithm>
#include <span>

namespace {
using Choices = std::span<const ppd_choice_t>;

Choices choicesOf(const ppd_option_t &option)
{
    return {option.choices, std::size_t(option.num_choices)};
}

QString wordOf(const char *text)
{
    return QString::fromUtf8(text);
}

/// libcups compares keywords like this.
bool isSame(const char *one, const char *other)
{
    return qstricmp(one, other) == 0;
}

template <typename Words>
bool contains(const Words &words, const char *word)
{
    return std::ranges::any_of(words, [word](const char *each) { return isSame(each, word); });
}

bool isOfPanel(const ppd_option_t &option)
{
    return contains(PanelKeywords::options, option.keyword);
}

bool isCount(const ppd_option_t &option)
{
    return isSame(option.keyword, PanelKeywords::count);
}

QString faultOfNumber(const ppd_option_t &option)
{
    return option.num_choices == 0 ? QStringLiteral("has no choices") : QString();
}

QString faultOfRepetition(const ppd_option_t &option)
{
    const Choices choices = choicesOf(option);
    for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
        if (std::any_of(choices.begin(), choice, [&choice](const ppd_choice_t &former) {
                return isSame(former.choice, choice->choice);
            })) {
            return QStringLiteral("has the choice %1 twice").arg(wordOf(choice->choice));
        }
    }
    return {};
}

QString faultOfSwitch(const ppd_option_t &option)
{
    QStringList words;
    for (const ppd_choice_t &choice : choicesOf(option)) {
        words.append(wordOf(choice.choice));
    }
    const QStringList switches{QStringLiteral("OFF"), QStringLiteral("ON")};
    return !isOfPanel(option) || isCount(option) || words.isEmpty() || words == switches
               ? QString()
               : QStringLiteral("has the choices %1; the check box needs OFF and ON, in this order")
                     .arg(words.join(QStringLiteral(", ")));
}

QString faultOfCounts(const ppd_option_t &option)
{
    if (!isCount(option)) {
        return {};
    }
    qint64 former = 0;
    for (const ppd_choice_t &choice : choicesOf(option)) {
        bool isNumber = false;
        const qint64 count = wordOf(choice.choice).toInt(&isNumber);
        if (!isNumber) {
            return QStringLiteral("has the choice %1, which is no count")
                .arg(wordOf(choice.choice));
        }
        if (&choice != option.choices && count != former + 1) {
            return QStringLiteral("has %1 behind %2; counts have to ascend by one, because they "
                                  "are chosen by their place")
                .arg(count)
                .arg(former);
        }
        former = count;
    }
    return {};
}

QString faultOfDefault(const ppd_option_t &option)
{
    if (option.num_choices == 0) {
        return {};
    }
    if (*option.defchoice == '\0') {
        return QStringLiteral("has no default");
    }
    const Choices choices = choicesOf(option);
    return std::ranges::any_of(choices,
                               [&option](const ppd_choice_t &choice) {
                                   return qstrcmp(choice.choice, option.defchoice) == 0;
                               })
               ? QString()
               : QStringLiteral("has the default %1, which is none of its choices")
                     .arg(wordOf(option.defchoice));
}

QString faultOfTitles(const ppd_option_t &option)
{
    const auto isText = [](const char *title) {
        return !textOfUTF8(title).isNull();
    };
    if (!isText(option.text)) {
        return QStringLiteral("has a title that is not UTF-8");
    }
    for (const ppd_choice_t &choice : choicesOf(option)) {
        if (!isText(choice.text)) {
            return QStringLiteral("has a title of its choice %1 that is not UTF-8")
                .arg(wordOf(choice.choice));
        }
    }
    return {};
}

/// What can be wrong with an option of the panels; null when it is not.
constexpr QString (*optionFaults[])(const ppd_option_t &option) = {
    faultOfNumber, faultOfRepetition, faultOfSwitch, faultOfCounts, faultOfDefault, faultOfTitles,
};

/// Whether the option is there, but no check box of the panel sets it.
QString faultOfAutoCut(const PPDFile &ppd)
{
    const bool hasBox = ppd.hasOption(QLatin1String(PanelKeywords::count)) ||
                        ppd.attribute(QLatin1String(PanelKeywords::autoCutHidden)) == u"False";
    return hasBox || !ppd.hasOption(QLatin1String(PanelKeywords::autoCut))
               ? QString()
               : QStringLiteral("has no check box: there is no %1 to set it, and %2 is not False")
                     .arg(QLatin1String(PanelKeywords::count),
                          QLatin1String(PanelKeywords::autoCutHidden));
}

/// Whether the name falls under a class by accident, or under none although it looks like one.
/// Behind the prefix of a class the names of papers have their size.
QString faultOfSize(const QByteArray &name)
{
    if (const PaperPrefix *prefix = paperPrefixOf(name)) {
        const QByteArray rest = name.mid(int(qstrlen(prefix->prefix)));
        return rest.isEmpty() || !QChar::isLetter(uchar(rest.front()))
                   ? QString()
                   : QStringLiteral("counts as %1, because its name begins with %2")
                         .arg(QLatin1String(prefix->meaning), QLatin1String(prefix->prefix));
    }
    const QByteArray capitals = name.toUpper();
    const PaperPrefix *meant = paperPrefixOf(capitals);
    return !meant || !faultOfSize(capitals).isNull()
               ? QString()
               : QStringLiteral("does not count as %1: its name would have to begin with %2")
                     .arg(QLatin1String(meant->meaning), QLatin1String(meant->prefix));
}

/// Whether a keyword is one of the maker's, like those of the panel.
bool isOfMaker(const char *keyword)
{
    return qstrnicmp(keyword, "Kv", 2) == 0;
}

QStringList remarksOnUnread(ppd_file_t *ppd, const QStringList &keys)
{
    const auto isRead = [&keys](const char *keyword) {
        return keys.contains(wordOf(keyword), Qt::CaseInsensitive);
    };
    QStringList remarks;
    const auto remark = [&remarks](const char *keyword, const char *text) {
        remarks.append(QStringLiteral("%1: %2").arg(wordOf(keyword), QLatin1String(text)));
    };
    for (const ppd_option_t *option = ppdFirstOption(ppd); option; option = ppdNextOption(ppd)) {
        if (isOfMaker(option->keyword) && !isRead(option->keyword)) {
            remark(option->keyword, "no panel reads this option");
        }
    }
    for (const ppd_attr_t *attribute : std::span(ppd->attrs, std::size_t(ppd->num_attrs))) {
        if (isRead(attribute->name) || contains(PanelKeywords::options, attribute->name)) {
            remark(attribute->name,
                   "has a line outside of OpenUI and CloseUI, which no panel reads");
        } else if (isOfMaker(attribute->name) &&
                   !contains(PanelKeywords::attributes, attribute->name)) {
            remark(attribute->name, "no panel reads this keyword");
        }
    }
    return remarks;
}

/// Adds a fault, unless it is null, to the remarks.
void add(const char *about, const QString &fault, QStringList &remarks)
{
    if (!fault.isNull()) {
        remarks.append(QStringLiteral("%1: %2").arg(wordOf(about), fault));
    }
}
} // namespace

QStringList remarksOnPPD(const PPDFile &ppd, const QStringList &keys)
{
    QStringList remarks;
    for (const QString &key : keys) {
        const ppd_option_t *option = ppdFindOption(ppd.get(), key.toUtf8().constData());
        for (const auto fault : optionFaults) {
            if (option) {
                add(option->keyword, fault(*option), remarks);
            }
        }
    }
    if (!keys.isEmpty()) {
        add(PanelKeywords::autoCut, faultOfAutoCut(ppd), remarks);
        for (const ppd_size_t &size :
             std::span(ppd.get()->sizes, std::size_t(ppd.get()->num_sizes))) {
            add(size.name, faultOfSize(size.name), remarks);
        }
    }
    remarks += remarksOnUnread(ppd.get(), keys);
    remarks.removeDuplicates();
    return remarks;
}
