// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/Look.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QStyle>

namespace {
constexpr int largeFont = 150;

QPalette darkPalette()
{
    QPalette palette(QColor(0x31, 0x31, 0x31), QColor(0x2a, 0x2a, 0x2a));
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x7e, 0xc8));
    palette.setColor(QPalette::ToolTipBase, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::ToolTipText, QColor(0xee, 0xee, 0xee));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(0x90, 0x90, 0x90));
    }
    return palette;
}

/// The font that the application started with.
const QFont &usualFont()
{
    static const QFont font = QApplication::font();
    return font;
}
} // namespace

QList<Look> Look::all(const QStringList &styles, const QString &scale)
{
    QList<Look> looks;
    for (const QString &style : styles) {
        for (const bool isDark : {false, true}) {
            looks.append({style, isDark, 100});
            if (scale == QLatin1String("1")) {
                looks.append({style, isDark, largeFont});
            }
        }
    }
    return looks;
}

void Look::apply() const
{
    QFont font = usualFont();
    font.setPointSizeF(font.pointSizeF() * fontPercent / 100.0);
    QApplication::setStyle(style);
    QApplication::setPalette(isDark ? darkPalette() : QApplication::style()->standardPalette());
    QApplication::setFont(font);
}

QString Look::name(const QString &scale) const
{
    const QString theme = isDark ? QStringLiteral("dark") : QStringLiteral("light");
    const QString size =
        fontPercent == 100 ? scale : QStringLiteral("%1font%2").arg(scale).arg(fontPercent);
    return QStringLiteral("%1-%2-%3").arg(style.toLower(), theme, size);
}
