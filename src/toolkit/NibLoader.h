// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QString>

#include <memory>
#include <span>

class QWidget;

/// A class of widgets that a nib may name.
struct NibClass
{
    QLatin1String name;
    QWidget *(*make)(QWidget *parent);

    /// The class under its own name.
    template <typename Widget>
    static NibClass of()
    {
        return {QLatin1String(Widget::staticMetaObject.className()),
                [](QWidget *parent) -> QWidget * {
                    return new Widget(parent);
                }};
    }
};

/// Makes the widgets of a nib: a form of Qt Designer's that is read at run time.
class NibLoader
{
public:
    /**
     * Reads a trusted CheckedFile with a form.
     *
     * @param error set to what is wrong, with the file's name; may be null.
     * @param classes whose widgets it may have besides those of Qt and of this folder.
     * @return the form's top widget, owned by the caller; null when the file cannot be
     *         read, or formFault() says that it is no form.
     */
    static std::unique_ptr<QWidget> load(const QString &path, QString *error = nullptr,
                                         std::span<const NibClass> classes = {});
};
