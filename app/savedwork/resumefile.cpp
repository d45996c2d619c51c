#include "resumefile.h"

#include "halllimits.h"
#include "pngstream.h"
#include "wholefile.h"

#include <QDataStream>
#include <QImage>
#include <QSaveFile>
#include <QtEndian>

#include <algorithm>

namespace {

// 250 devices in ten layouts take less than one MiB.
constexpr qint64 maxFileSize = qint64(8) * 1024 * 1024;
// Thumbnails are 64 x 64.
constexpr int maxThumbnailSide = 256;
constexpr qint64 maxThumbnailBytes = qint64(512) * 1024;
constexpr qint64 markerSize = 4;

/// The next 32-bit number without taking it; nothing at the end.
std::optional<quint32> peekNumber(QIODevice& device)
{
    const QByteArray bytes = device.peek(markerSize);
    return bytes.size() == markerSize ? std::optional(qFromBigEndian<quint32>(bytes.constData()))
                                      : std::nullopt;
}

/// Looks at the announced length before the stream does: it would believe it.
bool readText(QDataStream& stream, QString& text)
{
    constexpr quint32 nullText = 0xffffffffU;
    const std::optional<quint32> length = peekNumber(*stream.device());
    if (!length ||
        (*length != nullText && *length > stream.device()->bytesAvailable() - markerSize)) {
        return false;
    }
    stream >> text;
    return stream.status() == QDataStream::Ok;
}

bool isThumbnail(const PngExtent& png)
{
    return png.length <= maxThumbnailBytes && png.size.width() <= maxThumbnailSide &&
           png.size.height() <= maxThumbnailSide;
}

/// The pixels alone. A picture may bring texts along, and one with odd letters would be written
/// again in a form that is not taken.
QPixmap bare(const QPixmap& picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
    return QPixmap::fromImage(QImage(image.constBits(), image.width(), image.height(),
                                     image.bytesPerLine(), image.format())
                                  .copy());
}

/// The picture as it is written. An image tells the resolution of the screen that it was made on,
/// which nobody asks for, and for which the same picture would be other bytes on another screen.
QImage forAnyScreen(const QPixmap& picture)
{
    constexpr int usualDotsPerMeter = 3780; // 96 to the inch
    QImage image = picture.toImage();
    image.setDotsPerMeterX(usualDotsPerMeter);
    image.setDotsPerMeterY(usualDotsPerMeter);
    return image;
}

/// A picture is a marker and, unless that is 0, a PNG whose length is written nowhere.
bool readPicture(QDataStream& stream, QPixmap& picture)
{
    QIODevice& device = *stream.device();
    const std::optional<quint32> marker = peekNumber(device);
    if (!marker) {
        return false;
    }
    if (*marker == 0) {
        stream >> picture;
        return stream.status() == QDataStream::Ok;
    }
    const QByteArray ahead = device.peek(markerSize + maxThumbnailBytes);
    const std::optional<PngExtent> png = measurePng(QByteArrayView(ahead).sliced(markerSize));
    if (!png || !isThumbnail(*png)) {
        return false;
    }
    const qint64 end = device.pos() + markerSize + png->length;
    stream >> picture;
    picture = bare(picture);
    return stream.status() == QDataStream::Ok && device.seek(end);
}

bool readScene(QDataStream& stream, SceneInfo& scene)
{
    qint32 number = 0;
    stream >> number;
    scene.number = number;
    return stream.status() == QDataStream::Ok && readText(stream, scene.roomGroup) &&
           readPicture(stream, scene.thumbnail);
}

QList<SceneInfo> readScenes(QDataStream& stream)
{
    QList<SceneInfo> scenes;
    qint64 count = 0;
    stream >> count;
    for (qint64 index = 0; index < std::min(count, qint64(HallLimits::maxReadLayoutCount));
         ++index) {
        SceneInfo scene;
        if (!readScene(stream, scene)) {
            break;
        }
        scenes.append(scene);
    }
    return scenes;
}

} // namespace

QByteArray packResumeFile(const ResumeFile& content)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << content.xml << qint64(content.scenes.size());
    for (const SceneInfo& scene : content.scenes) {
        stream << qint32(scene.number) << scene.roomGroup << forAnyScreen(scene.thumbnail);
    }
    return bytes;
}

std::optional<ResumeFile> unpackResumeFile(const QByteArray& bytes, qsizetype* length)
{
    QDataStream stream(bytes);
    ResumeFile content;
    if (!readText(stream, content.xml)) {
        return std::nullopt;
    }
    content.scenes = readScenes(stream);
    if (length != nullptr) {
        *length = qsizetype(stream.device()->pos());
    }
    return content;
}

bool writeResumeFile(const QString& path, const QByteArray& bytes)
{
    // Written beside the earlier file and renamed into its place once all of it is on the disk.
    // Flushed by itself: when the last bytes find no room, the commit would not notice.
    QSaveFile file(path);
    return bytes.size() <= maxFileSize && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size() && file.flush() && file.commit();
}

std::optional<QByteArray> readResumeFile(const QString& path, QString* fault)
{
    QString reason;
    return readWholeFile(path, maxFileSize, fault != nullptr ? *fault : reason);
}
