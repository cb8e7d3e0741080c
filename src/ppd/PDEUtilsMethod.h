// SPDX-License-Identifier: Apache-2.0
#pragma once

#include "ppd/ChoiceList.h"
#include "ppd/PPD.h"

#include <QPointF>
#include <QString>

#include <memory>
#include <optional>

class QWidget;

/**
 * What a panel reads from the printer's PPD, and a few helpers for strings and controls.
 *
 * A null string stands for "none", which is not the same as an empty one. Unless said otherwise a
 * PPD must not be null.
 */
class PDEUtilsMethod13
{
public:
    PDEUtilsMethod13() = delete;

    /// Bytes of the string in the system encoding, else in the first available encoding that can
    /// hold it; 0 for a null string or when none can.
    static std::size_t stringLengthConvertedToEncoding(const QString &string);

    /// Whether @p part occurs in @p string, to the letter; an empty part occurs nowhere.
    static bool scanString(const QString &string, const QString &part);

    /// The string without the first occurrence of @p part; null when it does not occur.
    static QString deleteString(const QString &string, const QString &part);

    /// Always true.
    static bool runningOn105OrLater();

    /// The value of a PPD attribute; null when it is absent or not in the system encoding.
    static QString ppdAttrValStr(ppd_file_t *ppd, const char *name);

    /// The translated text of a PPD option; null when it is absent or not in the system encoding.
    static QString ppdOptionTextStr(ppd_file_t *ppd, const char *keyword);

    /// Whether the attribute's value is "False": such attributes say that an item is hidden, so
    /// "False" means that it is supported.
    static bool isSupportedItem(ppd_file_t *ppd, const char *name);

    /// The point that an attribute gives, as in "{12, 34.5}", where y may be missing and is then 0;
    /// (0, 0) when there is none.
    static QPointF originItem(ppd_file_t *ppd, const char *name);

    /// One PDEChoice for each choice of the option, in the PPD's order; null for a null option.
    static ChoiceList arrayFromPPDOption(const ppd_option_t *option);

    /// The first choice with that keyword, or the first that is the PPD's default for a null
    /// string; null when there is none. The list goes on owning it.
    static const PDEChoice *findChoiceForString(const QString &string, const ChoiceList &choices);

    /// The option's translated text; null when its bytes are no UTF-8.
    static QString newOptionTitle(const ppd_option_t *option);

    /// The choice's translated text; null when its bytes are no UTF-8.
    static QString newChoiceTitle(const ppd_choice_t *choice);

    /// Shows the text of a label or text field as enabled when the flag is exactly 1, dimmed for
    /// any other value; other controls, and null, are left alone.
    static void setEnabledForText(quint8 flag, QWidget *control);
    /// Whether setEnabledForText() has dimmed a label or a text field; false for another control.
    static bool isTextDimmed(const QWidget *control);
};
