#include "toolkit/Alert.h"

#include <QLabel>
#include <QMessageBox>

namespace {
constexpr int textWidth = 320;

/// Gives the informative text the room that the empty text would take.
void layOutWithoutText(const QMessageBox &alert)
{
    if (auto *text = alert.findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))) {
        text->hide();
    }
    if (auto *informative =
            alert.findChild<QLabel *>(QStringLiteral("qt_msgbox_informativelabel"))) {
        informative->setMinimumWidth(textWidth);
    }
}
} // namespace

void runModalAlert(QWidget *parent, const QString &title, const QString &informativeText)
{
    QMessageBox alert(QMessageBox::Warning, title, QString(), QMessageBox::NoButton,
                      parent ? parent->window() : nullptr);
    alert.setInformativeText(informativeText);
    layOutWithoutText(alert);
    alert.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    alert.setWindowModality(Qt::WindowModal);
    alert.exec();
}
