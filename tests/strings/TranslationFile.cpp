// SPDX-License-Identifier: Apache-2.0
#include "TranslationFile.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {
Translation readMessage(QXmlStreamReader &reader, const QString &context)
{
    Translation message;
    message.context = context;
    while (reader.readNextStartElement()) {
        if (reader.name() == u"source") {
            message.key = reader.readElementText();
        } else if (reader.name() == u"translation") {
            const auto state = reader.attributes().value(QLatin1String("type"));
            message.state = state.isEmpty() ? QString() : state.toString();
            message.text = reader.readElementText(QXmlStreamReader::ErrorOnUnexpectedElement);
        } else {
            message.hasComment = message.hasComment || reader.name() == u"extracomment";
            reader.skipCurrentElement();
        }
    }
    return message;
}

QList<Translation> readContext(QXmlStreamReader &reader)
{
    QList<Translation> messages;
    QString context;
    while (reader.readNextStartElement()) {
        if (reader.name() == u"name") {
            context = reader.readElementText();
        } else if (reader.name() == u"message") {
            messages.append(readMessage(reader, context));
        } else {
            reader.skipCurrentElement();
        }
    }
    return messages;
}
} // namespace

TranslationFile::TranslationFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        mError = file.errorString();
        return;
    }
    QXmlStreamReader reader(&file);
    if (reader.readNextStartElement() && reader.name() == u"TS") {
        mLanguage = reader.attributes().value(QLatin1String("language")).toString();
    }
    while (reader.readNextStartElement()) {
        if (reader.name() == u"context") {
            mTranslations.append(readContext(reader));
        } else {
            reader.skipCurrentElement();
        }
    }
    if (reader.hasError()) {
        mError = u"line %1: %2"_s.arg(reader.lineNumber()).arg(reader.errorString());
    }
}

TranslationFile TranslationFile::ofBundle(const QString &language)
{
    return TranslationFile(
        QStringLiteral(KV_SOURCE_FOLDER "/resources/strings/%1.ts").arg(language));
}

TranslationFile TranslationFile::ofHost(const QString &language)
{
    return TranslationFile(QStringLiteral(KV_SOURCE_FOLDER "/src/host/texts/%1.ts").arg(language));
}

QStringList TranslationFile::languages()
{
    return QStringLiteral(KV_LANGUAGES).split(u',');
}

QStringList TranslationFile::keys() const
{
    QStringList keys;
    for (const Translation &translation : mTranslations) {
        keys.append(translation.key);
    }
    return keys;
}

QString TranslationFile::text(const QString &key) const
{
    for (const Translation &translation : mTranslations) {
        if (translation.key == key) {
            return translation.text;
        }
    }
    return {};
}
