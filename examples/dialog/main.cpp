// SPDX-License-Identifier: Apache-2.0
#include <dialog/PrintDialogAttachment.h>
#include <host/LastChoices.h>
#include <host/ProblemReporter.h>

#include <QApplication>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

int main(int argc, char *argv[])
{
    const QApplication application(argc, argv);
    ProblemReporter reporter;
    LastChoices lastChoices;
    const PanelBundles bundles = PanelBundles::load(QStringLiteral(BUNDLES), reporter);

    QPrinter printer;
    QPrintDialog dialog(&printer);
    new PrintDialogAttachment(&dialog, bundles, reporter, lastChoices);
    if (dialog.exec() != QDialog::Accepted) {
        return 1;
    }
    QPainter painter(&printer);
    painter.drawText(painter.viewport(), Qt::AlignCenter, QStringLiteral("A label"));
    return 0;
}
