// SPDX-License-Identifier: Apache-2.0
#include "PropertiesDialog.h"

#include "demo/DialogDriver.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPageSize>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

namespace {
QWidget *optionsPage(const QDialog &properties)
{
    return properties.findChild<QWidget *>(u"cupsPropertiesPage"_s);
}
} // namespace

bool PropertiesDialog::with(DialogDriver &user, bool accept,
                            const std::function<void(QDialog &)> &action)
{
    bool opened = false;
    // The dialog keeps the caller until it is closed.
    QTimer::singleShot(0, qApp, [&] {
        if (auto *properties = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            opened = true;
            action(*properties);
            accept ? properties->accept() : properties->reject();
        }
    });
    QTest::mouseClick(user.widget(u"properties"_s), Qt::LeftButton);
    return opened;
}

QString PropertiesDialog::paper(const QDialog &properties)
{
    const auto *menu = properties.findChild<QComboBox *>(u"pageSizeCombo"_s);
    return menu ? menu->currentData().value<QPageSize>().key() : QString();
}

bool PropertiesDialog::hasOptions(const QDialog &properties)
{
    const auto *tabs = properties.findChild<QTabWidget *>();
    QWidget *page = optionsPage(properties);
    return tabs && page && tabs->isTabVisible(tabs->indexOf(page));
}

QStringList PropertiesDialog::options(const QDialog &properties)
{
    QStringList texts;
    if (const QWidget *page = optionsPage(properties)) {
        for (const QLabel *label : page->findChildren<QLabel *>()) {
            if (!label->isHidden() && !label->text().isEmpty()) {
                texts.append(label->text());
            }
        }
    }
    return texts;
}

bool PropertiesDialog::pickChoice(const QDialog &properties, const QString &text)
{
    bool picked = false;
    if (const QWidget *page = optionsPage(properties)) {
        for (QComboBox *menu : page->findChildren<QComboBox *>()) {
            const int index = menu->findText(text);
            if (index >= 0) {
                menu->setCurrentIndex(index);
                picked = true;
            }
        }
    }
    return picked;
}
