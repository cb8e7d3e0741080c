// SPDX-License-Identifier: Apache-2.0
#include "printcore/ProblemLine.h"

#include "printcore/QtVersions.h"

#include <QChar>

#include <cstdio>

namespace {
bool isSeen(uint character)
{
    const QChar::Category category = QChar::category(character);
    return QChar::isPrint(character) && category != QChar::Separator_Line &&
           category != QChar::Separator_Paragraph;
}

QString codeOf(uint character)
{
    switch (character) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const QChar zero = QLatin1Char('0');
    return character <= 0xff     ? QStringLiteral("\\x%1").arg(character, 2, 16, zero)
           : character <= 0xffff ? QStringLiteral("\\u%1").arg(character, 4, 16, zero)
                                 : QStringLiteral("\\U%1").arg(character, 8, 16, zero);
}
} // namespace

QString asOneLine(const QString &text)
{
    QString line;
    for (QtSize i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        const uint character =
            isPair ? QChar::surrogateToUcs4(text.at(i), text.at(i + 1)) : text.at(i).unicode();
        if (isSeen(character)) {
            line.append(text.constData() + i, isPair ? 2 : 1);
        } else {
            line += codeOf(character);
        }
        i += isPair ? 1 : 0;
    }
    return line;
}

void tellProblem(const QString &problem)
{
    std::fprintf(stderr, "kvprint: %s\n", asOneLine(problem).toLocal8Bit().constData());
}
