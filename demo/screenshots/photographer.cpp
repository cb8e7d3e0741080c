// SPDX-License-Identifier: Apache-2.0
#include "demo/Output.h"
#include "demo/screenshots/GuidePictures.h"
#include "demo/screenshots/SheetPictures.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QStyleFactory>
#include <QTranslator>

#include <cstdio>

namespace {
QString translationsFolder()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// Translates Qt's part of the dialog where its tables are installed, and sets the direction.
void useLanguage(const QString &language, QTranslator &translator)
{
    if (translator.load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                        translationsFolder())) {
        QCoreApplication::installTranslator(&translator);
    }
    QApplication::setLayoutDirection(QLocale(language).textDirection());
}

bool makeSheets(const QStringList &arguments)
{
    QTranslator translator;
    useLanguage(arguments.at(1), translator);
    const SheetPictures sheets(arguments.at(0), arguments.at(1), arguments.at(2));
    return sheets.make(arguments.mid(3)) >= 0;
}
} // namespace

/// Usage: kvprint-photographer styles, or guide FOLDER, or sheets FOLDER LANGUAGE SCALE STYLE ...
int main(int argc, char **argv)
{
    qInstallMessageHandler(dropOffscreenRemarks);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(2);
    const QString form = QCoreApplication::arguments().value(1);
    if (form == QLatin1String("styles") && arguments.isEmpty()) {
        std::puts(QStyleFactory::keys().join(QLatin1Char('\n')).toLocal8Bit().constData());
        return 0;
    }
    if (form == QLatin1String("guide") && arguments.size() == 1) {
        return GuidePictures(arguments.at(0)).make() < 0;
    }
    if (form == QLatin1String("sheets") && arguments.size() > 3) {
        return !makeSheets(arguments);
    }
    std::fputs("Usage: kvprint-photographer styles | guide FOLDER | "
               "sheets FOLDER LANGUAGE SCALE STYLE ...\n",
               stderr);
    return 2;
}
