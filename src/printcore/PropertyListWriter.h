#pragma once

#include "printcore/PropertyList.h"
#include "printcore/PropertyListNode.h"
#include "printcore/QtVersions.h"

#include <QString>
#include <QVariant>

/// Makes a property list of a variant.
class PropertyListWriter
{
public:
    explicit PropertyListWriter(PropertyList::Format format);

    /// The value as a property list; an empty array when a part of it cannot be written.
    QByteArray write(const QVariant &value);
    /// Which part cannot be written, and why.
    const QString &fault() const { return mFault; }

private:
    /// Where a value is: in the container at the outer place.
    struct Place
    {
        const Place *outer = nullptr;
        QString key;
        QtSize index = -1;
        int depth = 0;

        QString path() const;
    };

    PropertyListNode::Pointer node(const QVariant &value, const Place &place);
    PropertyListNode::Pointer scalarNode(const QVariant &value, const Place &place);
    PropertyListNode::Pointer stringNode(const QString &text, const Place &place);
    PropertyListNode::Pointer arrayNode(const QVariantList &values, const Place &place);
    PropertyListNode::Pointer dictionaryNode(const QVariantMap &values, const Place &place);
    bool takesText(const QString &text, const Place &place);
    void refuse(const Place &place, const QString &fault);

    PropertyList::Format mFormat;
    QString mFault;
};
