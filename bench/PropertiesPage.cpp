// SPDX-License-Identifier: Apache-2.0
#include "bench/PropertiesPage.h"

#include "bench/Interruption.h"
#include "bench/Measurement.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QTabWidget>
#include <QTimer>

#include <stdexcept>

namespace {
constexpr int optionCount = 9;

QPrinter &named(QPrinter &printer, const QString &queue)
{
    printer.setPrinterName(queue);
    return printer;
}

QWidget *optionsPage(const QDialog &properties)
{
    return properties.findChild<QWidget *>(QStringLiteral("cupsPropertiesPage"));
}

void turnToOptions(const QDialog &properties)
{
    if (auto *tabs = properties.findChild<QTabWidget *>()) {
        tabs->setCurrentWidget(optionsPage(properties));
    }
}

bool hasMenu(const QList<QComboBox *> &menus, int items)
{
    return std::any_of(menus.begin(), menus.end(),
                       [items](const QComboBox *menu) { return menu->count() == items; });
}
} // namespace

PropertiesPage::PropertiesPage(const MeasuredPrinter &printer)
    : mPrinter(printer)
    , mDialog(&named(mTarget, printer.queue()))
{
    mDialog.show();
    QApplication::processEvents();
    Interruption::check();
}

std::chrono::duration<double> PropertiesPage::open()
{
    auto *button = mDialog.findChild<QAbstractButton *>(QStringLiteral("properties"));
    if (mTarget.printerName() != mPrinter.queue() || !button || !button->isEnabled()) {
        throw std::runtime_error("the print dialog is not at the printer");
    }
    QString problem = QStringLiteral("the Properties dialog has not come up");
    Measurement::Clock::time_point shown;
    // The dialog keeps the click from returning until it is closed.
    QTimer::singleShot(0, &mDialog, [this, &problem, &shown] {
        if (auto *properties = qobject_cast<QDialog *>(QApplication::activeModalWidget())) {
            turnToOptions(*properties);
            shown = Measurement::Clock::now();
            problem = fault(*properties);
            properties->reject();
        }
    });
    const Measurement::Clock::time_point clicked = Measurement::Clock::now();
    button->click();
    if (!problem.isNull()) {
        throw std::runtime_error(problem.toStdString());
    }
    Interruption::check();
    return shown - clicked;
}

QString PropertiesPage::fault(const QDialog &properties) const
{
    const QWidget *page = optionsPage(properties);
    const auto menus = page ? page->findChildren<QComboBox *>() : QList<QComboBox *>();
    const auto *sizes = properties.findChild<QComboBox *>(QStringLiteral("pageSizeCombo"));
    if (!page || !page->isVisible() || menus.size() != optionCount) {
        return QStringLiteral("the page does not show the nine options");
    }
    if (!hasMenu(menus, mPrinter.counts) || !sizes || sizes->count() != mPrinter.sizes) {
        return QStringLiteral("the Properties dialog lacks counts or sizes");
    }
    return {};
}
