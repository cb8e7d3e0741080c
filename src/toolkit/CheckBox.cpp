#include "toolkit/CheckBox.h"

#include <QHelpEvent>
#include <QStyleOptionButton>
#include <QStylePainter>
#include <QToolTip>

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
}

void CheckBox::setTitle(const QString &title)
{
    mTitle = title.isNull() ? QStringLiteral("") : title;
    setText(withoutMnemonic(title));
    setAccessibleName(title);
}

bool CheckBox::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
        const QString text = elidedTitle() == title() ? QString() : title();
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text, this);
        return true;
    }
    return QCheckBox::event(event);
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
