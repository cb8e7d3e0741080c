// SPDX-License-Identifier: Apache-2.0
#include "LightBundle.h"

#include "FuzzTarget.h"

#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QRegularExpression>

#include <algorithm>
#include <filesystem>

namespace {
bool removeBlanks(const QString &form)
{
    static const QRegularExpression blanks(QStringLiteral(">\\s+<"));
    QFile file(form);
    if (!file.open(QIODevice::ReadWrite)) {
        return false;
    }
    const QByteArray text =
        QString::fromUtf8(file.readAll()).replace(blanks, QStringLiteral("><")).toUtf8();
    return file.resize(text.size()) && file.seek(0) && file.write(text) == text.size();
}

bool shrinkPictures(const QDir &resources)
{
    QImage pixel(1, 1, QImage::Format_ARGB32);
    pixel.fill(Qt::black);
    const QStringList pictures = resources.entryList({QStringLiteral("*.png")});
    return !pictures.isEmpty() &&
           std::all_of(pictures.begin(), pictures.end(), [&](const QString &picture) {
               return pixel.save(resources.filePath(picture));
           });
}
} // namespace

LightBundle::LightBundle()
    : mFolder(FuzzTarget::folderTemplate())
{
    const QString bundle = mFolder.filePath(QStringLiteral("Light.pde"));
    const QDir resources(bundle + QStringLiteral("/Contents/Resources"));
    std::error_code error;
    std::filesystem::copy(KV_BUNDLE_DIR, bundle.toStdString(),
                          std::filesystem::copy_options::recursive, error);
    expectRule(!error && removeBlanks(resources.filePath(QStringLiteral("OptionPDE.ui"))) &&
                   shrinkPictures(resources),
               "the bundle can be copied");
}
