// SPDX-License-Identifier: Apache-2.0
#include "kvprint/WindowlessPlatform.h"

#include "printcore/ProblemLine.h"

#include <QString>

#include <algorithm>

namespace {
/// How Qt begins to say what is missing without a display and a session.
constexpr const char *needlessRemarks[] = {
    "This plugin does not support ",
    "QStandardPaths: XDG_RUNTIME_DIR not set",
};

void writeMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    const bool isNeedless = std::ranges::any_of(needlessRemarks, [&message](const char *remark) {
        return message.startsWith(QLatin1String(remark));
    });
    if (!isNeedless) {
        tellProblem(message);
    }
}
} // namespace

void useWindowlessPlatform(WindowUse use)
{
    qputenv("QT_QPA_PLATFORM", use == WindowUse::Looks ? "offscreen" : "minimal");
    qInstallMessageHandler(writeMessage);
}
