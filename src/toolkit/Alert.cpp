#include "toolkit/Alert.h"

#include <QEvent>
#include <QLabel>
#include <QMessageBox>
#include <QWindow>

namespace {
constexpr int textWidth = 320;

/// A warning that goes with the window that it blocks, and with a view in it.
class Alert : public QMessageBox
{
public:
    Alert(QWidget *view, const QString &title, const QString &informativeText)
        : QMessageBox(Warning, title, QString(), NoButton, view->window())
    {
        setAttribute(Qt::WA_DeleteOnClose);
        setWindowModality(Qt::WindowModal);
        setInformativeText(informativeText);
        layOutWithoutText();
        addButton(QStringLiteral("OK"), AcceptRole);
        parentWidget()->installEventFilter(this);
        connect(view, &QObject::destroyed, this, [this] { done(Rejected); });
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parentWidget() && event->type() == QEvent::Hide && !event->spontaneous()) {
            done(Rejected);
        }
        return QMessageBox::eventFilter(watched, event);
    }

private:
    /// Gives the informative text the room that the empty text would take.
    void layOutWithoutText()
    {
        if (auto *text = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
            text->hide();
        }
        if (auto *informative = findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"))) {
            informative->setMinimumWidth(textWidth);
        }
    }
};

/// Whether the window is just being shown, so that it would come up above what is opened now.
bool isAboutToAppear(const QWidget *window)
{
    const QWindow *handle = window->windowHandle();
    return window->isVisible() && !(handle && handle->isVisible());
}
} // namespace

void openAlert(QWidget *view, const QString &title, const QString &informativeText)
{
    if (!view) {
        return;
    }
    auto *alert = new Alert(view, title, informativeText);
    QMetaObject::invokeMethod(
        alert, [alert] { alert->open(); },
        isAboutToAppear(view->window()) ? Qt::QueuedConnection : Qt::DirectConnection);
}
