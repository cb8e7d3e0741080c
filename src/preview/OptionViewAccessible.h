// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QAccessibleWidget>

class OptionView13_v400_;

/// The picture of the strip as assistive technology sees it: an image that is described in words.
class OptionViewAccessible : public QAccessibleWidget, public QAccessibleImageInterface
{
public:
    explicit OptionViewAccessible(OptionView13_v400_ *view);

    void *interface_cast(QAccessible::InterfaceType type) override;

    QString imageDescription() const override;
    QSize imageSize() const override;
    QPoint imagePosition() const override;
};
