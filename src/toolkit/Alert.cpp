// SPDX-License-Identifier: Apache-2.0
#include "toolkit/Alert.h"

#include <QCoreApplication>
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
        connect(view, &QObject::destroyed, this, &Alert::goAway);
        // Whoever follows alerts hears of it now.
        ensurePolished();
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (watched == parentWidget() && event->type() == QEvent::Hide && !event->spontaneous()) {
            goAway();
        }
        return QMessageBox::eventFilter(watched, event);
    }

private:
    void goAway()
    {
        // It may not be open yet.
        QCoreApplication::removePostedEvents(this, QEvent::MetaCall);
        done(Rejected);
    }

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
} // namespace

void openAlert(QWidget *view, const QString &title, const QString &informativeText)
{
    if (view) {
        auto *alert = new Alert(view, title, informativeText);
        // An application may do away with anything as soon as another window comes up.
        QMetaObject::invokeMethod(alert, &QDialog::open, Qt::QueuedConnection);
    }
}
