// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// One text of a translation's source file.
struct Translation
{
    QString context;
    QString key;
    QString text;
    /// What the translator has left of it: "unfinished", "obsolete", "vanished"; null when done.
    QString state;
    bool hasComment = false;
};

/// The source file of one language's string table, in the format of Qt Linguist.
class TranslationFile
{
public:
    /// Reads a file, empty with an error when it cannot be read.
    explicit TranslationFile(const QString &path);

    /// The texts of the panel's bundle in a language, from the source tree.
    static TranslationFile ofBundle(const QString &language);
    /// The texts of the dialog's parts around the panels in a language, from the source tree.
    static TranslationFile ofHost(const QString &language);
    /// The languages that the build has tables for.
    static QStringList languages();

    const QString &error() const { return mError; }
    /// The language that the file says to be in.
    const QString &language() const { return mLanguage; }
    const QList<Translation> &translations() const { return mTranslations; }
    QStringList keys() const;
    /// The text for a key; null when there is none.
    QString text(const QString &key) const;

private:
    QString mError;
    QString mLanguage;
    QList<Translation> mTranslations;
};
