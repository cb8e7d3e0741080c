// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QComboBox>

#include <functional>
#include <optional>

/**
 * A menu of items that are told apart by tags.
 *
 * Before the user can reach another item, by the list, the keyboard or the wheel, each is enabled
 * or disabled as the validator says.
 */
class PopUpButton : public QComboBox
{
    Q_OBJECT
    /// The items' tags in the items' order, as decimal numbers; for Qt Designer.
    Q_PROPERTY(QStringList itemTags READ itemTags WRITE setItemTags)

public:
    using Validator = std::function<bool(int tag)>;

    explicit PopUpButton(QWidget *parent = nullptr);

    QStringList itemTags() const { return mItemTags; }
    /// Tags the items that are there and those that are still to come.
    void setItemTags(const QStringList &tags);

    /// The tag of the item at the index; 0 when it has none.
    int tagAt(int index) const;
    /// The selected item's tag; nothing when the menu is empty.
    std::optional<int> selectedTag() const;
    /// Selects the item with the tag; changes nothing when there is none.
    void selectItemWithTag(int tag);
    /// Chooses the item at the index as the user would from the list.
    void choose(int index);

    /// Removes the first item with the title, if any; the first one is selected when that was the
    /// selected one.
    void removeItemWithTitle(const QString &title);

    /// What tells an item from the others in every language, kept besides its title; null when it
    /// has not been set.
    QString itemIdentifier(int index) const;
    void setItemIdentifier(int index, const QString &identifier);

    /// Names an item for its tool tip and for people who do not see its picture.
    void setItemName(int index, const QString &name);
    QString itemName(int index) const;
    /// The selected item's name; null when the menu is empty.
    QString selectedName() const { return itemName(currentIndex()); }

    /// Asked with the tag of each item whether it can be chosen now; all can without a validator.
    void setValidator(Validator validator);
    /// Says in the tip and the description of an item why it cannot be chosen while it cannot.
    void setGreyReason(const QString &reason) { mGreyReason = reason; }
    /// Asks the validator about every item.
    void validateItems();

    void showPopup() override;
    /// Lets nothing be chosen by a click on a disabled item of the list.
    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void applyTags(int first, int last);
    void describeSelection();
    void describeItem(int index, bool isEnabled);

    QStringList mItemTags;
    Validator mValidator;
    QString mGreyReason;
};
