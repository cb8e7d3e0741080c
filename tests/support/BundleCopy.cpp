// SPDX-License-Identifier: Apache-2.0
#include "support/BundleCopy.h"

#include "printcore/QtVersions.h"

#include <QDir>
#include <QFile>

BundleCopy::BundleCopy()
    : mIsCopied(mFolder.isValid() && copyFolder(QStringLiteral(KV_BUNDLE_DIR), mFolder.path()))
{
}

std::shared_ptr<Bundle> BundleCopy::open() const
{
    auto bundle = mIsCopied ? Bundle::open(mFolder.path()) : nullptr;
    if (bundle) {
        bundle->setLanguages({QStringLiteral("en")});
    }
    return bundle;
}

QString BundleCopy::resources() const
{
    return mFolder.filePath(QStringLiteral("Contents/Resources/"));
}

QString BundleCopy::nibPath() const
{
    return resources() + QStringLiteral("OptionPDE.ui");
}

QByteArray BundleCopy::nib() const
{
    QFile file(nibPath());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool BundleCopy::setNib(const QByteArray &form) const
{
    QFile file(nibPath());
    if (form.isNull()) {
        return file.remove();
    }
    return file.open(QIODevice::WriteOnly) && file.write(form) == form.size();
}

bool BundleCopy::replaceInNib(const QString &text, const QString &by) const
{
    QString form = QString::fromUtf8(nib());
    return form.contains(text) && setNib(form.replace(text, by).toUtf8());
}

bool BundleCopy::removeOutlet(const QString &name) const
{
    if (name == u"kPDEView") {
        return replaceInNib(QStringLiteral("name=\"kPDEView\""), QStringLiteral("name=\"form\""));
    }
    QString form = QString::fromUtf8(nib());
    form.remove(QStringLiteral("<tabstop>%1</tabstop>").arg(name));
    const QtSize named = form.indexOf(QStringLiteral("name=\"%1\"").arg(name));
    const QtSize start = named < 0 ? -1 : form.lastIndexOf(QLatin1String("<widget"), named);
    const QLatin1String end("</widget>");
    const QtSize stop = form.indexOf(end, named);
    return start >= 0 && stop >= 0 &&
           setNib(form.remove(start, stop + end.size() - start).toUtf8());
}

bool BundleCopy::removeResource(const QString &fileName) const
{
    return QFile::remove(resources() + fileName);
}
