// SPDX-License-Identifier: Apache-2.0
#include "toolkit/PopUpButton.h"

#include "toolkit/AccessibleRegistration.h"
#include "toolkit/PopUpButtonAccessible.h"

#include <QAbstractItemView>
#include <QMouseEvent>
#include <QStandardItemModel>

namespace {
/// Behind the role that holds the tags.
constexpr int identifierRole = Qt::UserRole + 1;
} // namespace

PopUpButton::PopUpButton(QWidget *parent)
    : QComboBox(parent)
{
    static const AccessibleRegistration<PopUpButton, PopUpButtonAccessible> registration;
    connect(model(), &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex &, int first, int last) { applyTags(first, last); });
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &PopUpButton::describeSelection);
}

void PopUpButton::setItemTags(const QStringList &tags)
{
    mItemTags = tags;
    applyTags(0, count() - 1);
}

void PopUpButton::applyTags(int first, int last)
{
    for (int i = first; i <= last && i < mItemTags.size(); ++i) {
        setItemData(i, mItemTags.at(i).toInt());
    }
}

int PopUpButton::tagAt(int index) const
{
    return itemData(index).toInt();
}

std::optional<int> PopUpButton::selectedTag() const
{
    if (currentIndex() < 0) {
        return std::nullopt;
    }
    return tagAt(currentIndex());
}

void PopUpButton::selectItemWithTag(int tag)
{
    if (const int index = findData(tag); index >= 0) {
        setCurrentIndex(index);
    }
}

void PopUpButton::choose(int index)
{
    setCurrentIndex(index);
    Q_EMIT activated(index);
}

void PopUpButton::removeItemWithTitle(const QString &title)
{
    const int index = findText(title, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0) {
        return;
    }
    const bool selected = index == currentIndex();
    removeItem(index);
    if (selected && count() > 0) {
        setCurrentIndex(0);
    }
}

QString PopUpButton::itemIdentifier(int index) const
{
    return itemData(index, identifierRole).toString();
}

void PopUpButton::setItemIdentifier(int index, const QString &identifier)
{
    setItemData(index, identifier, identifierRole);
}

void PopUpButton::setItemName(int index, const QString &name)
{
    setItemData(index, name, Qt::ToolTipRole);
    setItemData(index, name, Qt::AccessibleTextRole);
    describeSelection();
}

QString PopUpButton::itemName(int index) const
{
    return itemData(index, Qt::AccessibleTextRole).toString();
}

void PopUpButton::setValidator(Validator validator)
{
    mValidator = std::move(validator);
}

void PopUpButton::validateItems()
{
    auto *items = qobject_cast<QStandardItemModel *>(model());
    for (int i = 0; items && i < count(); ++i) {
        const bool isEnabled = !mValidator || mValidator(tagAt(i));
        if (items->item(i)->isEnabled() != isEnabled) {
            items->item(i)->setEnabled(isEnabled);
            describeItem(i, isEnabled);
        }
    }
}

void PopUpButton::describeItem(int index, bool isEnabled)
{
    const QString reason = isEnabled ? QString() : mGreyReason;
    const QString name = itemName(index);
    setItemData(index, reason, Qt::AccessibleDescriptionRole);
    setItemData(index, reason.isEmpty() ? name : name + QLatin1Char('\n') + reason,
                Qt::ToolTipRole);
}

void PopUpButton::showPopup()
{
    validateItems();
    // In front of the list's own filter, which would choose the item highlighted before.
    view()->viewport()->installEventFilter(this);
    QComboBox::showPopup();
}

bool PopUpButton::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched == view()->viewport()) {
        const QModelIndex item = view()->indexAt(static_cast<QMouseEvent *>(event)->pos());
        return item.isValid() && !item.flags().testFlag(Qt::ItemIsEnabled);
    }
    return QComboBox::eventFilter(watched, event);
}

void PopUpButton::keyPressEvent(QKeyEvent *event)
{
    validateItems();
    QComboBox::keyPressEvent(event);
}

void PopUpButton::wheelEvent(QWheelEvent *event)
{
    validateItems();
    QComboBox::wheelEvent(event);
}

void PopUpButton::describeSelection()
{
    const QString name = selectedName();
    if (name == toolTip()) {
        return;
    }
    setToolTip(name);
    QAccessibleValueChangeEvent event(this, name);
    QAccessible::updateAccessibility(&event);
}

#include "moc_PopUpButton.cpp"
