#include "capture/ScanProtocol.h"

#include <QtEndian>

namespace kartella {

namespace {

// A frame's length is four bytes, big-endian, then the message's byte, then its values.
constexpr qsizetype HeaderSize = 4;
// No page of any scanner comes near this; a longer length is a broken stream.
constexpr quint32 LongestFrame = 1u << 30;

} // namespace

QByteArray scanFrame(ScanMessage message, const QByteArray& values)
{
    QByteArray frame(HeaderSize, '\0');
    qToBigEndian(quint32(values.size() + 1), frame.data());
    frame.append(char(message));
    frame.append(values);
    return frame;
}

bool takeScanFrame(QByteArray* buffer, ScanMessage* message, QByteArray* values)
{
    if (buffer->size() < HeaderSize)
        return false;
    const quint32 length = qFromBigEndian<quint32>(buffer->constData());
    if (length == 0 || length > LongestFrame) {
        // Nothing after a broken length can be read; the stream ends here.
        buffer->clear();
        *message = ScanMessage::Quit;
        values->clear();
        return true;
    }
    if (buffer->size() < HeaderSize + qsizetype(length))
        return false;
    *message = ScanMessage(quint8(buffer->at(HeaderSize)));
    *values = buffer->mid(HeaderSize + 1, qsizetype(length) - 1);
    buffer->remove(0, HeaderSize + qsizetype(length));
    return true;
}

QDataStream& operator<<(QDataStream& stream, const ScannerDevice& device)
{
    return stream << device.name << device.vendor << device.model;
}

QDataStream& operator>>(QDataStream& stream, ScannerDevice& device)
{
    return stream >> device.name >> device.vendor >> device.model;
}

QDataStream& operator<<(QDataStream& stream, const ScannerChoices& choices)
{
    return stream << choices.sources << choices.modes << choices.resolutions;
}

QDataStream& operator>>(QDataStream& stream, ScannerChoices& choices)
{
    return stream >> choices.sources >> choices.modes >> choices.resolutions;
}

QDataStream& operator<<(QDataStream& stream, const ScanSettings& settings)
{
    return stream << settings.device << settings.source << settings.mode << qint32(settings.resolution);
}

QDataStream& operator>>(QDataStream& stream, ScanSettings& settings)
{
    qint32 resolution = 0;
    stream >> settings.device >> settings.source >> settings.mode >> resolution;
    settings.resolution = resolution;
    return stream;
}

void writeScanImage(QDataStream& stream, const QImage& image)
{
    stream << qint32(image.width()) << qint32(image.height()) << qint32(image.format()) << image.colorTable()
           << qint32(image.dotsPerMeterX()) << qint32(image.dotsPerMeterY());
    const qsizetype lineBytes = (qsizetype(image.width()) * image.depth() + 7) / 8;
    for (int y = 0; y < image.height(); ++y)
        stream.writeRawData(reinterpret_cast<const char*>(image.constScanLine(y)), int(lineBytes));
}

QImage readScanImage(QDataStream& stream)
{
    qint32 width = 0;
    qint32 height = 0;
    qint32 format = 0;
    QList<QRgb> colours;
    qint32 dotsX = 0;
    qint32 dotsY = 0;
    stream >> width >> height >> format >> colours >> dotsX >> dotsY;
    if (stream.status() != QDataStream::Ok || width <= 0 || height <= 0 || format <= QImage::Format_Invalid
        || format >= QImage::NImageFormats)
        return {};
    QImage image(width, height, QImage::Format(format));
    if (image.isNull())
        return {};
    image.setColorTable(colours);
    image.setDotsPerMeterX(dotsX);
    image.setDotsPerMeterY(dotsY);
    const qsizetype lineBytes = (qsizetype(width) * image.depth() + 7) / 8;
    for (int y = 0; y < height; ++y) {
        if (stream.readRawData(reinterpret_cast<char*>(image.scanLine(y)), int(lineBytes)) != lineBytes)
            return {};
    }
    return image;
}

} // namespace kartella
