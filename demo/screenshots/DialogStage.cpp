#include "demo/screenshots/DialogStage.h"

#include "host/PanelHost.h"
#include "host/PrintDialogAttachment.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHelpEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QScrollArea>
#include <QTest>
#include <QToolTip>

namespace {
bool isOverDialog(const QWidget &widget, const QWidget &dialog)
{
    const Qt::WindowType type = widget.windowType();
    return widget.isVisible() && &widget != &dialog && (type == Qt::Popup || type == Qt::ToolTip);
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
    line.files = {label.fileName()};
    mCommand = std::make_unique<PrintCommand>(line, QStringLiteral(KV_BUNDLE_FOLDER));
    ExitStatus status = ExitStatus::NotPrinted;
    mDialog = mCommand->prepare(&status);
    if (!mDialog || !mCommand->attachment()->host()) {
        return false;
    }
    mUser.emplace(*mDialog);
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
    QImage picture = mDialog->grab().toImage();
    QPainter painter(&picture);
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        if (isOverDialog(*widget, *mDialog)) {
            painter.drawPixmap(widget->pos() - mDialog->mapToGlobal(QPoint()), widget->grab());
        }
    }
    return picture;
}

QImage DialogStage::panelPicture() const
{
    return panelTab()->grab().toImage();
}
