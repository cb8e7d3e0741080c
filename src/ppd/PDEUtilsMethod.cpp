// SPDX-License-Identifier: Apache-2.0
#include "ppd/PDEUtilsMethod.h"

#include "printcore/SystemEncoding.h"
#include "printcore/UTF8.h"

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QRegularExpression>

namespace {
/// The palette's role of a control's text; nothing for a control that has no text of its own.
std::optional<QPalette::ColorRole> textRoleOf(const QWidget *control)
{
    if (qobject_cast<const QLabel *>(control)) {
        return QPalette::WindowText;
    }
    if (qobject_cast<const QLineEdit *>(control)) {
        return QPalette::Text;
    }
    return std::nullopt;
}
} // namespace

std::size_t PDEUtilsMethod13::stringLengthConvertedToEncoding(const QString &string)
{
    if (string.isNull()) {
        return 0;
    }
    if (const auto bytes = SystemEncoding::encode(string)) {
        return std::size_t(bytes->size());
    }
    for (const char *encoding : SystemEncoding::availableStringEncodings()) {
        if (const auto bytes = SystemEncoding::encode(string, encoding)) {
            return std::size_t(bytes->size());
        }
    }
    return 0;
}

bool PDEUtilsMethod13::scanString(const QString &string, const QString &part)
{
    return !part.isEmpty() && string.contains(part);
}

QString PDEUtilsMethod13::deleteString(const QString &string, const QString &part)
{
    if (!scanString(string, part)) {
        return {};
    }
    QString rest = string;
    rest.remove(string.indexOf(part), part.size());
    return rest.isNull() ? QStringLiteral("") : rest;
}

bool PDEUtilsMethod13::runningOn105OrLater()
{
    return true;
}

QString PDEUtilsMethod13::ppdAttrValStr(ppd_file_t *ppd, const char *name)
{
    const ppd_attr_t *attribute = ppdFindAttr(ppd, name, nullptr);
    return attribute ? SystemEncoding::decode(attribute->value) : QString();
}

QString PDEUtilsMethod13::ppdOptionTextStr(ppd_file_t *ppd, const char *keyword)
{
    const ppd_option_t *option = ppdFindOption(ppd, keyword);
    return option ? SystemEncoding::decode(option->text) : QString();
}

bool PDEUtilsMethod13::isSupportedItem(ppd_file_t *ppd, const char *name)
{
    return ppdAttrValStr(ppd, name) == QLatin1String("False");
}

QPointF PDEUtilsMethod13::originItem(ppd_file_t *ppd, const char *name)
{
    static const QString number = QStringLiteral(R"(([+-]?(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?))");
    static const QRegularExpression point(
        QStringLiteral(R"(^\s*\{?\s*%1(?:\s*,\s*%1)?)").arg(number));
    const QRegularExpressionMatch match = point.match(ppdAttrValStr(ppd, name));
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
}

ChoiceList PDEUtilsMethod13::arrayFromPPDOption(const ppd_option_t *option)
{
    return ChoiceList(option);
}

const PDEChoice *PDEUtilsMethod13::findChoiceForString(const QString &string,
                                                       const ChoiceList &choices)
{
    return choices.at(string.isNull() ? choices.indexOfDefault() : choices.indexOf(string));
}

QString PDEUtilsMethod13::newOptionTitle(const ppd_option_t *option)
{
    return textOfUTF8(option->text);
}

QString PDEUtilsMethod13::newChoiceTitle(const ppd_choice_t *choice)
{
    return textOfUTF8(choice->text);
}

void PDEUtilsMethod13::setEnabledForText(quint8 flag, QWidget *control)
{
    if (const auto role = textRoleOf(control)) {
        const QColor color = QGuiApplication::palette().color(
            flag == 1 ? QPalette::Active : QPalette::Disabled, *role);
        QPalette palette = control->palette();
        palette.setColor(QPalette::Active, *role, color);
        palette.setColor(QPalette::Inactive, *role, color);
        control->setPalette(palette);
    }
}

bool PDEUtilsMethod13::isTextDimmed(const QWidget *control)
{
    const auto role = textRoleOf(control);
    return role && control->palette().color(QPalette::Active, *role) ==
                       QGuiApplication::palette().color(QPalette::Disabled, *role);
}
