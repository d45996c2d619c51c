#include "hallfile.h"

#include "resumefile.h"
#include "resumexml.h"
#include "workrestore.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QXmlStreamReader>
#include <QtEndian>

#include <utility>
#include <variant>

namespace {

constexpr qsizetype lengthSize = 4; // of the number before a text
constexpr qsizetype countSize = 8;  // of the number of layouts

/// A place in a file and what is wrong there.
QString at(const QString& place, const QString& reason)
{
    return place.isEmpty() ? reason : place + QStringLiteral(": ") + reason;
}

/// Why the bytes of a file cannot be had.
QString readingFault(const QString& path)
{
    if (QFileInfo(path).isDir()) {
        return QStringLiteral("this is a folder, not a file");
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return file.errorString();
    }
    file.read(1);
    return file.error() == QFileDevice::NoError
               ? QStringLiteral("it is larger than any configuration of a hall")
               : file.errorString();
}

/// Why the bytes do not begin with a text.
QString textFault(const QByteArray& bytes)
{
    if (bytes.isEmpty()) {
        return QStringLiteral("the file is empty");
    }
    if (bytes.size() < lengthSize) {
        return at(QStringLiteral("byte 1"), QStringLiteral("this is no configuration of a hall"));
    }
    constexpr auto markup = "\0<\0T"; // a text that begins as ours does, in the file's encoding
    const bool isOurs = bytes.mid(lengthSize).startsWith(QByteArray(markup, lengthSize));
    return isOurs
               ? at(QStringLiteral("byte %1").arg(bytes.size()),
                    QStringLiteral("the file ends here, in the middle of its text"))
               : at(QStringLiteral("byte 1"), QStringLiteral("this is no configuration of a hall"));
}

/// Why a text is not read as saved work.
QString xmlFault(const QString& text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::DTD) {
        if (reader.isStartElement()) {
            break;
        }
    }
    const bool isRoot = reader.isStartElement() && reader.name() == u"Tessel";
    while (isRoot && !reader.atEnd()) {
        reader.readNext();
    }
    const QString place = QStringLiteral("line %1 of its text").arg(reader.lineNumber());
    if (reader.hasError()) {
        return at(place, reader.errorString());
    }
    return at(QStringLiteral("line 1 of its text"),
              isRoot ? QStringLiteral("it names no page of the wizard, or nests too deeply")
                     : QStringLiteral("this is no configuration of a hall"));
}

/// Whether there are as many pictures as the file announces, and nothing behind them. `length` is
/// how many bytes were read.
QString pictureFault(const QByteArray& bytes, const ResumeFile& content, qsizetype length)
{
    const qsizetype begin = lengthSize + 2 * content.xml.size();
    if (bytes.size() < begin + countSize) {
        return at(QStringLiteral("byte %1").arg(bytes.size()),
                  QStringLiteral("the file ends here, before its pictures"));
    }
    const auto announced = qFromBigEndian<qint64>(bytes.constData() + begin);
    if (announced != content.scenes.size()) {
        return at(QStringLiteral("picture %1 of %2").arg(content.scenes.size() + 1).arg(announced),
                  QStringLiteral("it is cut or damaged"));
    }
    return length == bytes.size() ? QString()
                                  : at(QStringLiteral("byte %1").arg(length + 1),
                                       QStringLiteral("something follows its pictures"));
}

DeviceData deviceFrom(const SavedDevice& saved)
{
    DeviceData device;
    device.label = saved.label;
    device.ipAddress = saved.ipAddress;
    device.macAddress = saved.macAddress;
    device.modelName = saved.modelName;
    device.roomNumber = saved.roomNumber;
    device.labelModified = saved.labelModified;
    return device;
}

/// The wizard looks for a file's devices in its network; here they are what the file says.
void takeDevices(SavedWork& work, DeviceRecords& devices)
{
    for (SavedSection& section : work.sections) {
        if (auto* saved = std::get_if<QList<SavedDevice>>(&section)) {
            for (const SavedDevice& device : std::as_const(*saved)) {
                devices.append(deviceFrom(device));
            }
            saved->clear();
        }
    }
}

/// Fills `hall`; the fault without the file's name.
QString unpackHall(const QByteArray& bytes, DocumentData& hall)
{
    qsizetype length = 0;
    const std::optional<ResumeFile> content =
        bytes.isEmpty() ? std::nullopt : unpackResumeFile(bytes, &length);
    if (!content) {
        return textFault(bytes);
    }
    std::optional<SavedWork> work = readResumeXml(content->xml);
    if (!work) {
        return xmlFault(content->xml);
    }
    takeDevices(*work, hall.devices);
    if (!restoreWork(hall, *work, content->scenes).isComplete) {
        return QStringLiteral("it holds something that this version does not know");
    }
    return pictureFault(bytes, *content, length);
}

} // namespace

HallReading readHallFile(const QString& path)
{
    const std::optional<QByteArray> bytes =
        QFileInfo(path).isDir() ? std::nullopt : readResumeFile(path);
    if (!bytes) {
        return {nullptr, at(path, readingFault(path))};
    }
    auto hall = std::make_unique<HallDocument>();
    const QString fault = unpackHall(*bytes, hall->data());
    return fault.isEmpty() ? HallReading{std::move(hall), {}}
                           : HallReading{nullptr, at(path, fault)};
}

QByteArray packHall(const DocumentData& hall)
{
    return packResumeFile({writeResumeXml(gatherWork(hall)), hall.scenes});
}

QString writeHallFile(const QString& path, const DocumentData& hall)
{
    if (writeResumeFile(path, packHall(hall))) {
        return {};
    }
    QSaveFile file(path);
    const QString reason = file.open(QIODevice::WriteOnly)
                               ? QStringLiteral("it could not be written completely")
                               : file.errorString();
    file.cancelWriting();
    return at(path, reason);
}
