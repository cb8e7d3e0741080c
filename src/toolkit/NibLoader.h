#pragma once

#include <QString>

#include <memory>

class QWidget;

/// Makes the widgets of a nib: a form of Qt Designer's that is read at run time.
class NibLoader
{
public:
    /**
     * Reads a trusted CheckedFile with a form, whose custom widgets may be any of this folder's.
     *
     * @param error set to what is wrong, with the file's name; may be null.
     * @return the form's top widget, owned by the caller; null when the file cannot be
     *         read, or formFault() says that it is no form.
     */
    static std::unique_ptr<QWidget> load(const QString &path, QString *error = nullptr);
};
