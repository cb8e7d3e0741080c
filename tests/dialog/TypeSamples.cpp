// SPDX-License-Identifier: Apache-2.0
#include "TypeSamples.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace {
constexpr int sampleSize = 8;

QByteArray pdf()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter(&writer).drawRect(0, 0, sampleSize, sampleSize);
    return buffer.data();
}

QByteArray picture(const char *format)
{
    QImage image(sampleSize, sampleSize, QImage::Format_RGB32);
    image.fill(Qt::red);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return buffer.data();
}

/// A picture of two pixels, which Qt does not write.
QByteArray gif()
{
    return QByteArray::fromHex("474946383961"
                               "02000100"
                               "80000000000000ffffff"
                               "2c000000000200010000"
                               "0202440a00"
                               "3b");
}

/// A grey picture without compression, which Qt does not write.
QByteArray tiff()
{
    struct Field
    {
        quint16 tag;
        quint32 value;
    };
    constexpr quint32 pixels = sampleSize * sampleSize;
    constexpr Field fields[] = {{256, sampleSize}, {257, sampleSize}, {258, 8},
                                {259, 1},          {262, 1},          {273, 8},
                                {277, 1},          {278, sampleSize}, {279, pixels}};
    constexpr quint16 asLong = 4;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    stream.writeRawData("II*", 4);
    stream << quint32(8 + pixels);
    stream.writeRawData(QByteArray(int(pixels), '\x7f').constData(), int(pixels));
    stream << quint16(std::size(fields));
    for (const Field &field : fields) {
        stream << field.tag << asLong << quint32(1) << field.value;
    }
    stream << quint32(0);
    return bytes;
}
} // namespace

QMap<QString, TypeSample> typeSamples()
{
    return {
        {u"application/pdf"_s, {u"sample.pdf"_s, pdf()}},
        {u"image/bmp"_s, {u"sample.bmp"_s, picture("BMP")}},
        {u"image/gif"_s, {u"sample.gif"_s, gif()}},
        {u"image/jpeg"_s, {u"sample.jpg"_s, picture("JPG")}},
        {u"image/png"_s, {u"sample.png"_s, picture("PNG")}},
        {u"image/tiff"_s, {u"sample.tiff"_s, tiff()}},
        {u"image/x-portable-bitmap"_s, {u"sample.pbm"_s, picture("PBM")}},
        {u"image/x-portable-graymap"_s, {u"sample.pgm"_s, picture("PGM")}},
        {u"image/x-portable-pixmap"_s, {u"sample.ppm"_s, picture("PPM")}},
        {u"text/plain"_s, {u"sample.txt"_s, "A line of text\n"}},
    };
}
