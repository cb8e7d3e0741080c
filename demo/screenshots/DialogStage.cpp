// SPDX-License-Identifier: Apache-2.0
#include "demo/screenshots/DialogStage.h"

#include "dialog/PrintDialogAttachment.h"
#include "host/PanelHost.h"

#include <QAbstractAnimation>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHelpEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QScrollArea>
#include <QStyle>
#include <QTest>
#include <QToolTip>

#include <algorithm>

namespace {
bool isOverDialog(const QWidget &widget, const QWidget &dialog)
{
    const Qt::WindowType type = widget.windowType();
    return widget.isVisible() && &widget != &dialog && (type == Qt::Popup || type == Qt::ToolTip);
}

/// What has changed is drawn as it was, and a style such as Breeze moves it from there on.
void endAnimations()
{
    const auto animations = QApplication::style()->findChildren<QAbstractAnimation *>();
    for (QAbstractAnimation *animation : animations) {
        const bool isForward = animation->direction() == QAbstractAnimation::Forward;
        animation->setCurrentTime(isForward ? std::max(animation->totalDuration(), 0) : 0);
    }
}

QImage grabbed(QWidget &widget)
{
    widget.grab();
    endAnimations();
    return widget.grab().toImage();
}

/// A window over the dialog.
struct Overlay
{
    QPoint place;
    QImage picture;
};

QList<Overlay> overlaysOf(const QWidget &dialog)
{
    QList<Overlay> overlays;
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (isOverDialog(*widget, dialog)) {
            overlays.append({widget->pos() - dialog.mapToGlobal(QPoint()), grabbed(*widget)});
        }
    }
    return overlays;
}

/// The picture of the area, given in its units; what it does not have of that is transparent.
QImage extended(const QImage &picture, const QRectF &area)
{
    const qreal ratio = picture.devicePixelRatio();
    const QRectF pixels(area.topLeft() * ratio, area.size() * ratio);
    return picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
        .copy(pixels.toAlignedRect());
}
} // namespace

DialogStage::DialogStage() = default;

DialogStage::~DialogStage()
{
    QToolTip::hideText();
}

bool DialogStage::open(const QString &queue)
{
    QFile label(mFolder.filePath(QStringLiteral("label.pdf")));
    if (!label.open(QIODevice::WriteOnly) || label.write("%PDF") < 0) {
        return false;
    }
    label.close();
    CommandLine line;
    line.printer = queue;
    line.files = QStringList{label.fileName()};
    mCommand = std::make_unique<PrintCommand>(line, QStringLiteral(KV_BUNDLE_FOLDER));
    ExitStatus status = ExitStatus::NotPrinted;
    mDialog = mCommand->prepare(&status);
    if (!mDialog) {
        return false;
    }
    mUser = std::make_unique<DialogDriver>(*mDialog);
    return mUser->open() && mUser->showOptions() && showPanel();
}

bool DialogStage::showPanel()
{
    const QWidget *tab = panelTab();
    if (!tab || !mUser->showTab(tab->windowTitle())) {
        return false;
    }
    mDialog->adjustSize();
    QTest::qWait(0);
    return true;
}

QScrollArea *DialogStage::panelTab() const
{
    return static_cast<QScrollArea *>(mUser->widget(QStringLiteral("panelTab")));
}

bool DialogStage::pickPrinter(const QString &queue)
{
    return mUser->pickPrinter(queue) && showPanel();
}

bool DialogStage::click(const QString &checkBox)
{
    QWidget *box = mUser->widget(checkBox);
    if (!box || !box->isEnabled()) {
        return false;
    }
    // In a dialog that is read from right to left the mark is elsewhere.
    box->setFocus(Qt::TabFocusReason);
    QTest::keyClick(box, Qt::Key_Space);
    QTest::qWait(0);
    return true;
}

bool DialogStage::openMenu()
{
    auto *menu = qobject_cast<QComboBox *>(mUser->widget(QStringLiteral("mOptionPopUpButton")));
    if (!menu) {
        return false;
    }
    menu->showPopup();
    QTest::qWait(0);
    return true;
}

bool DialogStage::restOn(const QString &control)
{
    QWidget *widget = mUser->widget(control);
    if (!widget) {
        return false;
    }
    const QPoint at(2 * widget->width() / 5, widget->height() / 2);
    QHelpEvent event(QEvent::ToolTip, at, widget->mapToGlobal(at));
    QCoreApplication::sendEvent(widget, &event);
    QTest::qWait(0);
    return QToolTip::isVisible();
}

bool DialogStage::showSummary()
{
    const QWidget *tab = mUser->widget(QStringLiteral("panelSummary"));
    return tab && mUser->showTab(tab->windowTitle());
}

QImage DialogStage::picture() const
{
    QImage picture = grabbed(*mDialog);
    const QList<Overlay> overlays = overlaysOf(*mDialog);
    QRectF area = mDialog->rect();
    for (const Overlay &overlay : overlays) {
        const QSizeF size = QSizeF(overlay.picture.size()) / overlay.picture.devicePixelRatio();
        area |= QRectF(overlay.place, size);
    }
    if (area != QRectF(mDialog->rect())) {
        picture = extended(picture, area);
    }
    QPainter painter(&picture);
    for (const Overlay &overlay : overlays) {
        painter.drawImage(overlay.place - area.topLeft(), overlay.picture);
    }
    return picture;
}

QImage DialogStage::panelPicture() const
{
    return grabbed(*panelTab());
}
