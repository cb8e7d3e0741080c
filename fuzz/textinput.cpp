// SPDX-License-Identifier: Apache-2.0

// Text input: formatters with a field, formats of messages and of dates.

#include "FuzzTarget.h"
#include "textinput/CalendarFormat.h"
#include "textinput/FormatString.h"
#include "textinput/FormatterAdapter.h"
#include "textinput/PDEFormatter.h"
#include "textinput/PDETextField.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QTimeZone>

#include <algorithm>
#include <cstring>

namespace {
/// Takes numbers from the beginning of an input, and texts from what is left.
class Reader
{
public:
    explicit Reader(const QByteArray &input)
        : mRest(input)
    {
    }

    template <typename Number>
    Number number()
    {
        Number number{};
        const QByteArray bytes = take(sizeof number);
        std::memcpy(&number, bytes.constData(), size_t(bytes.size()));
        return number;
    }

    /// The text up to the next line's end.
    QString text()
    {
        const auto end = mRest.indexOf('\n');
        QByteArray line = take(end < 0 ? mRest.size() : end + 1);
        if (line.endsWith('\n')) {
            line.chop(1);
        }
        return QString::fromUtf8(line);
    }

    bool isAtEnd() const { return mRest.isEmpty(); }

private:
    QByteArray take(qsizetype length)
    {
        const QByteArray taken = mRest.left(length);
        mRest.remove(0, taken.size());
        return taken;
    }

    QByteArray mRest;
};

QDateTime dateOf(Reader &reader)
{
    const auto time = reader.number<qint64>();
    const auto zone = reader.number<qint32>() % 50'000;
    return (time & 7) == 0 ? QDateTime() : QDateTime::fromMSecsSinceEpoch(time, QTimeZone(zone));
}

class TextInputFuzzer : public FuzzTarget
{
public:
    void run(const QByteArray &input) override
    {
        Reader reader(input);
        switch (reader.number<quint8>() % 3) {
        case 0:
            edit(reader);
            break;
        case 1:
            showDate(reader);
            break;
        default:
            format(reader);
        }
    }

private:
    static std::unique_ptr<PDEFormatter> formatterOf(Reader &reader)
    {
        auto formatter = PDEFormatter::initWithStyle(reader.number<qint8>());
        const auto what = reader.number<quint8>();
        formatter->setMaxLength(reader.number<qint8>());
        if (what & 1) {
            formatter->setMinValue(reader.number<qint32>());
        }
        if (what & 2) {
            formatter->setMaxValue(reader.number<qint32>());
        }
        if (what & 4) {
            formatter->addInvalidCharacter(reader.text());
        }
        return formatter;
    }

    static void edit(Reader &reader)
    {
        const auto formatter = formatterOf(reader);
        PDETextField13_v400_ field;
        FormatterAdapter::attach(formatter.get(), &field);
        for (int steps = 0; steps < 40 && !reader.isAtEnd(); ++steps) {
            change(field, reader);
            expectRule(field.cursorPosition() <= field.text().size(), "the caret is in the text");
        }
    }

    static void change(QLineEdit &field, Reader &reader)
    {
        const auto what = reader.number<quint8>();
        const auto size = int(field.text().size());
        switch (what % 8) {
        case 0:
            press(field, Qt::Key_Backspace, {});
            break;
        case 1:
            field.setCursorPosition(reader.number<quint8>() % (size + 1));
            break;
        case 2:
            field.setSelection(reader.number<quint8>() % (size + 1), reader.number<qint8>() % 9);
            break;
        case 3:
            field.undo();
            break;
        case 4:
            field.redo();
            // Qt may leave the caret behind the text's end.
            field.setCursorPosition(std::min(field.cursorPosition(), int(field.text().size())));
            break;
        case 5:
            field.insert(reader.text());
            break;
        case 6:
            field.setText(reader.text());
            break;
        default:
            press(field, 0, reader.text());
        }
    }

    static void press(QLineEdit &field, int key, const QString &text)
    {
        QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(&field, &event);
    }

    static void showDate(Reader &reader)
    {
        const QDateTime date = dateOf(reader);
        const QString format = reader.text();
        QVariantMap locale;
        for (const char *key : {"NSWeekDayNameArray", "NSShortWeekDayNameArray", "NSMonthNameArray",
                                "NSShortMonthNameArray", "NSAMPMDesignation", "NSDateFormatString",
                                "NSTimeFormatString", "NSTimeDateFormatString"}) {
            if (const QString value = reader.text(); !value.isEmpty()) {
                const bool isList = value.contains(u',');
                locale.insert(QLatin1String(key),
                              isList ? QVariant(value.split(u',')) : QVariant(value));
            }
        }
        descriptionWithCalendarFormat(date, format, locale);
        const auto formatter = PDEFormatter::initWithCalendarDate(date, locale);
        formatter->setFormatString(format);
        formatter->stringForObjectValue({});
    }

    static void format(Reader &reader)
    {
        const auto formatter = PDEFormatter::initWithStyle(reader.number<qint8>());
        const auto integer = reader.number<qint64>();
        const auto real = reader.number<double>();
        const QString text = reader.text();
        const QString format = reader.text();
        formatter->setFormatString(format);
        formatter->stringForObjectValue(integer);
        formatter->stringForObjectValue(real);
        formatter->stringForObjectValue(text);
        const QByteArray bytes = text.toUtf8();
        stringWithFormat(format, {integer, text, real, bytes.constData(), nullptr, integer});
        stringWithFormat(format, {text, real, int(integer), real, text, integer});
    }
};
} // namespace

KV_FUZZ_TARGET("textinput", TextInputFuzzer)
