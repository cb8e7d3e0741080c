#pragma once

#include <QByteArray>
#include <QString>
#include <QXmlStreamReader>

/**
 * Tells well-formed XML property lists from others and puts them into their plainest form.
 *
 * libplist takes much that is no property list (a word for a number, a key without a value),
 * overflows its stack when values are nested too deeply, and takes a time that grows with the
 * square of the number of entities in a text. So it is given nothing but the plain form.
 */
class XMLPropertyListNormalizer
{
public:
    explicit XMLPropertyListNormalizer(const QByteArray &data);

    /// The property list without comments, entities and the like; an empty array when it is none.
    QByteArray normalized();
    /// What is wrong with the data and in which line; null when nothing is.
    QString fault() const;

private:
    void readDocument();
    void readValue(int depth);
    void readArray(int depth);
    void readDictionary(int depth);
    void readScalar();
    bool goToNextElement();
    void write(const QString &element, const QByteArray &content);

    QXmlStreamReader mReader;
    QByteArray mNormalized;
    bool mIsUTF8;
};
