// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QDBusConnection>
#include <QStringList>

/// What the applications at a bus tell assistive technology of their controls.
class AccessibleTree
{
public:
    /// @param bus of assistive technology.
    explicit AccessibleTree(const QDBusConnection &bus);

    /**
     * A line for each control that has a name, in the order of the tree: "checkbox: Half Cut,
     * checked, grey; why it is grey". A control with a value tells it behind its name.
     */
    QStringList lines() const;

private:
    struct Node
    {
        QString service;
        QString path;
    };

    QVariant ask(const Node &node, const char *interface, const char *method,
                 const QVariantList &arguments = {}) const;
    QVariant property(const Node &node, const char *interface, const char *name) const;
    QList<Node> childrenOf(const Node &node) const;
    void addLines(const Node &node, QStringList *lines) const;

    QDBusConnection mBus;
};
