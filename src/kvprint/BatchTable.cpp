// SPDX-License-Identifier: Apache-2.0
#include "kvprint/BatchTable.h"

#include <QStringDecoder>

#include <csv.h>

#include <algorithm>

namespace {
const QString fileColumn = QStringLiteral("file");
const QString copiesColumn = QStringLiteral("copies");
const QString optionPrefix = QStringLiteral("option:");

bool isColumn(const QString &name)
{
    static const QStringList members{fileColumn, QStringLiteral("printer"), copiesColumn,
                                     QStringLiteral("preset"), QStringLiteral("paper")};
    return members.contains(name) ||
           (name.startsWith(optionPrefix) && name.size() > optionPrefix.size());
}

unsigned char separatorIn(const QByteArray &head)
{
    const auto isSeparator = [](char byte) {
        return byte == ',' || byte == ';' || byte == '\t';
    };
    const auto found = std::ranges::find_if(head, isSeparator);
    return static_cast<unsigned char>(found == head.end() ? ',' : *found);
}

/// As a number when it is one, as the members of JSON lines are.
QJsonValue copiesIn(const QString &field)
{
    bool isNumber = false;
    const int number = field.toInt(&isNumber);
    return isNumber ? QJsonValue(number) : QJsonValue(field);
}
} // namespace

BatchTable::BatchTable(const QByteArray &head)
    : mParser(std::make_unique<csv_parser>())
{
    startParser(separatorIn(head));
    parse(head);
    if (mFault.isNull() && !mIsWhole && !head.endsWith('\n')) {
        parse({});
    }
    mColumns = mFields;
    refuse(faultOfHead());
}

void BatchTable::startParser(unsigned char separator)
{
    csv_init(mParser.get(), CSV_STRICT | CSV_STRICT_FINI);
    csv_set_delim(mParser.get(), separator);
}

BatchTable::~BatchTable()
{
    csv_free(mParser.get());
}

QString BatchTable::faultOfHead() const
{
    if (!mIsWhole || !mColumns.contains(fileColumn)) {
        return QStringLiteral("is neither a JSON object nor the head of a table with a column "
                              "\"file\"");
    }
    for (const QString &column : mColumns) {
        if (!isColumn(column)) {
            return QStringLiteral("there is no column \"%1\"; the columns are file, printer, "
                                  "copies, preset, paper, and option:KEYWORD for an option")
                .arg(column);
        }
        if (mColumns.count(column) > 1) {
            return QStringLiteral("there are two columns \"%1\"").arg(column);
        }
    }
    return {};
}

void BatchTable::refuse(const QString &fault)
{
    if (mFault.isNull()) {
        mFault = fault;
    }
}

void BatchTable::take(const QByteArray &field)
{
    if (mIsWhole) {
        refuse(QStringLiteral("there is a carriage return within the line"));
        return;
    }
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    mFields.append(decoder.decode(field));
    if (decoder.hasError()) {
        refuse(QStringLiteral("is not in UTF-8"));
    }
}

void BatchTable::parse(const QByteArray &line)
{
    const auto take = [](void *field, std::size_t size, void *table) {
        static_cast<BatchTable *>(table)->take(
            QByteArray(static_cast<const char *>(field), qsizetype(size)));
    };
    const auto end = [](int, void *table) {
        static_cast<BatchTable *>(table)->mIsWhole = true;
    };
    const bool isParsed = line.isNull()
                              ? csv_fini(mParser.get(), take, end, this) == 0
                              : csv_parse(mParser.get(), line.constData(), std::size_t(line.size()),
                                          take, end, this) == std::size_t(line.size());
    if (!isParsed) {
        refuse(line.isNull() ? QStringLiteral("a quote is not closed")
                             : QStringLiteral("a quote stands within a field; a field with quotes "
                                              "is put in quotes, and its own quotes are doubled"));
        mIsWhole = true;
        const unsigned char separator = csv_get_delim(mParser.get());
        csv_free(mParser.get());
        startParser(separator);
    }
}

BatchTable::Row BatchTable::add(const QByteArray &line)
{
    if (mIsWhole) {
        mFields.clear();
        mFault = QString();
        mIsBegun = false;
        mIsWhole = false;
    }
    if (!mIsBegun && line.trimmed().isEmpty()) {
        return Row::None;
    }
    mIsBegun = true;
    parse(line);
    if (mIsWhole && mFields.size() != mColumns.size()) {
        refuse(QStringLiteral("there are %1 fields, and %2 columns in the head")
                   .arg(mFields.size())
                   .arg(mColumns.size()));
    }
    return mIsWhole ? Row::Whole : Row::Unfinished;
}

QJsonObject BatchTable::members() const
{
    QJsonObject members;
    QJsonObject options;
    for (qsizetype i = 0; i < std::min(mFields.size(), mColumns.size()); ++i) {
        const QString &column = mColumns.at(i);
        const QString &field = mFields.at(i);
        if (field.isEmpty()) {
            continue;
        }
        if (column.startsWith(optionPrefix)) {
            options.insert(column.mid(optionPrefix.size()), field);
        } else {
            members.insert(column, column == copiesColumn ? copiesIn(field) : QJsonValue(field));
        }
    }
    members.insert(QStringLiteral("options"), options);
    return members;
}
