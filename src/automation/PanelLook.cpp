// SPDX-License-Identifier: Apache-2.0
#include "automation/PanelLook.h"

#include "plugin/PDEPanel.h"
#include "plugin/PDEPanelAutomation.h"

#include <QAccessible>
#include <QBuffer>
#include <QComboBox>
#include <QCoreApplication>
#include <QHelpEvent>
#include <QJsonArray>
#include <QPixmap>
#include <QToolTip>

#include <algorithm>
#include <vector>

namespace {
/// The widget without the ground below it.
QPixmap transparentPictureOf(QWidget &widget)
{
    const qreal ratio = widget.devicePixelRatioF();
    QPixmap picture(widget.size() * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    widget.render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    return picture;
}

double numberIn(const QJsonObject &object, const char *member)
{
    return object.value(QLatin1String(member)).toDouble();
}

/// Rests the mouse on the control, on which a panel finds the words of its tip.
void rest(QWidget *control)
{
    const QPoint place = control->rect().center();
    QHelpEvent event(QEvent::ToolTip, place, control->mapToGlobal(place));
    QCoreApplication::sendEvent(control, &event);
    QToolTip::hideText();
}
} // namespace

PanelLook::PanelLook(PDEPanel &panel, QWidget &view, double scale)
    : mPanel(panel)
    , mView(view)
    , mState(panel.automation()->state())
    , mScale(scale)
{
}

QJsonObject PanelLook::toJson() const
{
    return {{QStringLiteral("title"), mPanel.panelName()},
            {QStringLiteral("boxes"), boxes()},
            {QStringLiteral("count"), count()},
            {QStringLiteral("presets"), presets()},
            {QStringLiteral("preview"), preview()}};
}

QJsonObject PanelLook::stateOf(const QString &control) const
{
    const QJsonObject state = mState.value(QLatin1String("controls")).toObject();
    const QJsonObject shown = state.value(control).toObject();
    return shown.value(QLatin1String("hidden")).toBool(true) ? QJsonObject() : shown;
}

QJsonObject PanelLook::look(const QString &name) const
{
    auto *control = mView.findChild<QWidget *>(name);
    if (!control) {
        return {};
    }
    rest(control);
    return {{QStringLiteral("control"), name},
            {QStringLiteral("enabled"), control->isEnabledTo(&mView)},
            {QStringLiteral("name"), control->accessibleName()},
            {QStringLiteral("tip"), control->accessibleDescription()}};
}

QJsonArray PanelLook::boxes() const
{
    const QJsonObject controls = mState.value(QLatin1String("controls")).toObject();
    std::vector<QJsonObject> looks;
    const QStringList names = controls.keys();
    for (const QString &name : names) {
        const QJsonObject state = stateOf(name);
        if (!state.contains(QLatin1String("state"))) {
            continue;
        }
        QJsonObject box = look(name);
        box.insert(QStringLiteral("name"), state.value(QLatin1String("title")));
        box.insert(QStringLiteral("ticked"), state.value(QLatin1String("state")).toInt() != 0);
        looks.push_back(box);
    }
    std::ranges::sort(looks, std::greater<>(), [this](const QJsonObject &box) {
        return numberIn(stateOf(box.value(QLatin1String("control")).toString()), "y");
    });
    QJsonArray array;
    std::ranges::copy(looks, std::back_inserter(array));
    return array;
}

QJsonValue PanelLook::count() const
{
    const QString field = QStringLiteral("mCutEveryTxBx");
    const QString stepper = QStringLiteral("mCutEveryStpr");
    const QString caption = QStringLiteral("mCutEveryStr");
    const QJsonObject state = stateOf(field);
    if (state.isEmpty()) {
        return {};
    }
    QJsonObject count = look(field);
    count.insert(QStringLiteral("text"), state.value(QLatin1String("text")));
    count.insert(QStringLiteral("box"), QStringLiteral("mCutEveryChkBx"));
    count.insert(QStringLiteral("caption"), stateOf(caption).value(QLatin1String("title")));
    auto *accessible = QAccessible::queryAccessibleInterface(mView.findChild<QWidget *>(stepper));
    if (auto *bounds = accessible ? accessible->valueInterface() : nullptr) {
        count.insert(QStringLiteral("smallest"), bounds->minimumValue().toInt());
        count.insert(QStringLiteral("largest"), bounds->maximumValue().toInt());
    }
    return count;
}

QJsonValue PanelLook::presets() const
{
    const QString name = QStringLiteral("mOptionPopUpButton");
    const auto *menu = mView.findChild<QComboBox *>(name);
    if (!menu || stateOf(name).isEmpty()) {
        return {};
    }
    QJsonArray items;
    const auto all = mPanel.automation()->presets();
    for (int i = 0; i < all.size(); ++i) {
        const QPixmap picture =
            menu->itemIcon(i).pixmap(menu->iconSize(), mView.devicePixelRatioF());
        items.append(QJsonObject{{QStringLiteral("tag"), all.at(i).tag},
                                 {QStringLiteral("name"), all.at(i).name},
                                 {QStringLiteral("enabled"), all.at(i).isEnabled},
                                 {QStringLiteral("selected"), all.at(i).isSelected},
                                 {QStringLiteral("picture"), png(picture)}});
    }
    QJsonObject presets = look(name);
    presets.insert(QStringLiteral("items"), items);
    return presets;
}

QJsonValue PanelLook::preview() const
{
    const QString name = QStringLiteral("mOptionView");
    auto *view = mView.findChild<QWidget *>(name);
    if (!view || !view->isVisibleTo(&mView)) {
        return {};
    }
    QJsonObject preview = look(name);
    preview.insert(QStringLiteral("picture"), png(transparentPictureOf(*view)));
    return preview;
}

QJsonValue PanelLook::png(const QPixmap &picture) const
{
    if (picture.isNull()) {
        return {};
    }
    const QSize size = (picture.deviceIndependentSize() * mScale).toSize();
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    picture.toImage()
        .scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .save(&file, "PNG");
    return QString::fromLatin1(file.data().toBase64());
}
