#include "toolkit/Alert.h"

#include <QMessageBox>

void runModalAlert(QWidget *parent, const QString &title, const QString &informativeText)
{
    QMessageBox alert(QMessageBox::Warning, title, QString(), QMessageBox::NoButton,
                      parent ? parent->window() : nullptr);
    alert.setInformativeText(informativeText);
    alert.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    alert.setWindowModality(Qt::WindowModal);
    alert.exec();
}
