#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/**
 * Tells well-formed binary property lists from others.
 *
 * libplist takes types that variants have no match for and follows every reference anew, so that
 * a few hundred bytes may unfold to any size and any depth.
 */
class BinaryPropertyListCheck
{
public:
    explicit BinaryPropertyListCheck(const QByteArray &data);

    /// What is wrong with the data and in which object; null when nothing is.
    QString fault();

private:
    enum class State {
        Unseen,
        Open,
        Sound,
    };

    /// What is known of one object.
    struct Visit
    {
        State state = State::Unseen;
        /// The containers below it, one in another.
        int height = 0;
        /// Bytes and references that it unfolds to.
        quint64 size = 0;
    };

    /// An object's first byte and what follows it.
    struct Object
    {
        quint8 kind = 0;
        quint8 detail = 0;
        /// Of the elements or, in other types, bytes.
        quint64 count = 0;
        /// The place of the first element or byte.
        quint64 content = 0;
    };

    bool readTrailer();
    bool readObject(quint64 index, Object *object) const;
    bool fits(quint64 at, quint64 count, quint64 size) const;
    quint64 number(quint64 at, quint64 size) const;

    bool check(quint64 index, int depth);
    bool checkContent(quint64 index, const Object &object, int depth);
    bool checkContainer(quint64 index, const Object &object, int depth);
    bool checkKeys(const Object &object);
    bool refuse(const QString &fault);

    QByteArray mData;
    QString mFault;
    quint64 mOffsetSize = 0;
    quint64 mReferenceSize = 0;
    quint64 mTop = 0;
    quint64 mOffsetTable = 0;
    std::vector<Visit> mVisits;
};
