// SPDX-License-Identifier: Apache-2.0
#include "CutterPrinter.h"

#include "support/PPDText.h"

QByteArray CutterPrinter::ppd(const QByteArray &cut)
{
    return PPDText()
        .option("CutMedia", QByteArrayList(std::begin(cuts), std::end(cuts)), cut, "Cut Media")
        .option("MirrorPrint", {"False", "True"}, "False", "Mirror Print")
        .option("InkType", {"Thin", "Thick"}, "Thin", "Ink")
        .size("w72h144", 72, 144)
        .data()
        .append("*UIConstraints: *CutMedia EndOfJob *InkType Thick\n"
                "*UIConstraints: *InkType Thick *CutMedia EndOfJob\n");
}

QString CutterPrinter::printed(const QMap<QString, QString> &attributes)
{
    QStringList words;
    for (auto attribute = attributes.begin(); attribute != attributes.end(); ++attribute) {
        const QString &key = attribute.key();
        if (key.startsWith(u"Kv"_s) || key == u"CutMedia"_s || key == u"MirrorPrint"_s) {
            words.append(key + u'=' + attribute.value());
        }
    }
    return words.join(u' ');
}
