// SPDX-License-Identifier: Apache-2.0
#include "toolkit/CheckBox.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

#include <utility>

namespace {
/// A title as Qt wants it, in which an ampersand stands for itself.
QString withoutMnemonic(QString title)
{
    return title.replace(QLatin1Char('&'), QLatin1String("&&"));
}
} // namespace

CheckBox::CheckBox(QWidget *parent)
    : QCheckBox(parent)
{
    connect(this, &QCheckBox::toggled, this, &CheckBox::noteToggle);
}

void CheckBox::setState(bool on)
{
    mIsSetByProgram = true;
    setChecked(on);
    mIsSetByProgram = false;
}

void CheckBox::noteToggle()
{
    // The program's change is told once; whoever hears of it may toggle the box in turn.
    if (!std::exchange(mIsSetByProgram, false)) {
        Q_EMIT chosen();
    }
}

void CheckBox::setTitle(const QString &title)
{
    mTitle = title.isNull() ? QStringLiteral("") : title;
    setText(withoutMnemonic(title));
    setAccessibleName(title);
}

bool CheckBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && elidedTitle() != title()) {
        const QString tip = toolTip().isEmpty() ? title() : title() + QLatin1Char('\n') + toolTip();
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), tip, this);
        return true;
    }
    return QCheckBox::event(event);
}

int CheckBox::widthForTitle(const QString &title) const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = withoutMnemonic(title);
    const QSize text =
        style()->itemTextRect(fontMetrics(), {}, Qt::TextShowMnemonic, false, option.text).size();
    return style()->sizeFromContents(QStyle::CT_CheckBox, &option, text, this).width();
}

void CheckBox::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text = withoutMnemonic(elidedTitle());
    painter.drawControl(QStyle::CE_CheckBox, option);
}

QString CheckBox::elidedTitle() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    const int width = style()->subElementRect(QStyle::SE_CheckBoxContents, &option, this).width();
    return fontMetrics().elidedText(title(), Qt::ElideRight, width);
}

#include "moc_CheckBox.cpp"
