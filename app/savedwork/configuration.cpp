#include "configuration.h"

#include "leftoutline.h"
#include "resumefile.h"
#include "resumeforms.h"
#include "resumexml.h"

#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QtEndian>

#include <array>

namespace {

constexpr qsizetype lengthSize = 4; // of the number before a text
constexpr qsizetype countSize = 8;  // of the number of layouts

QString translated(const char* text)
{
    return QCoreApplication::translate("Configuration", text);
}

/// A place in a file and what is wrong there.
QString at(const QString& place, const QString& reason)
{
    return place + QStringLiteral(": ") + reason;
}

QString byte(qsizetype number)
{
    return translated("byte %1").arg(number);
}

QString textLine(qint64 number)
{
    return translated("line %1 of its text").arg(number);
}

QString noConfiguration()
{
    return translated("this is no configuration of a hall");
}

/// Why the bytes do not begin with a text.
QString textFault(const QByteArray& bytes)
{
    if (bytes.isEmpty()) {
        return translated("the file is empty");
    }
    // A text that begins as ours does, in the file's encoding.
    constexpr std::array<char, lengthSize> markup{'\0', '<', '\0', 'T'};
    const bool isOurs = bytes.mid(lengthSize).startsWith(QByteArrayView(markup.data(), lengthSize));
    return isOurs
               ? at(byte(bytes.size()), translated("the file ends here, in the middle of its text"))
               : at(byte(1), noConfiguration());
}

/// Moves to the root; whether it is ours.
bool enterRoot(QXmlStreamReader& reader)
{
    while (!reader.atEnd() && reader.readNext() != QXmlStreamReader::DTD) {
        if (reader.isStartElement()) {
            return reader.name() == ResumeRoot::element;
        }
    }
    return false;
}

/// A sentence as a reason, which others are put around.
QString withoutFullStop(QString sentence)
{
    if (sentence.endsWith(u'.')) {
        sentence.chop(1);
    }
    return sentence;
}

/// Why a text is not read as saved work.
QString xmlFault(const QString& text)
{
    QXmlStreamReader reader(text);
    const bool isOurs = enterRoot(reader);
    while (isOurs && !reader.atEnd()) {
        reader.readNext();
    }
    if (reader.hasError()) {
        return at(textLine(reader.lineNumber()), withoutFullStop(reader.errorString()));
    }
    return at(textLine(1), isOurs
                               ? translated("it names no page of the wizard, or nests too deeply")
                               : noConfiguration());
}

/// Whether all that a text says is in the work that was read from it.
QString lossFault(const QString& text, const SavedWork& work)
{
    const std::optional<qint64> line = firstLineLeftOut(text, writeResumeXml(work));
    return line ? at(textLine(*line),
                     translated("it holds something that this version does not know"))
                : QString();
}

/// Whether there are as many pictures as the file announces, and nothing behind them. `length` is
/// how many bytes were read.
QString pictureFault(const QByteArray& bytes, const ResumeFile& content, qsizetype length)
{
    const qsizetype begin = lengthSize + 2 * content.xml.size();
    if (bytes.size() < begin + countSize) {
        return at(byte(bytes.size()), translated("the file ends here, before its pictures"));
    }
    const auto announced = qFromBigEndian<qint64>(bytes.constData() + begin);
    if (announced != content.scenes.size()) {
        return at(translated("picture %1 of %2").arg(content.scenes.size() + 1).arg(announced),
                  translated("it is cut or damaged"));
    }
    return length == bytes.size()
               ? QString()
               : at(byte(length + 1), translated("something follows its pictures"));
}

ConfigurationReading unpacked(const QByteArray& bytes)
{
    qsizetype length = 0;
    const std::optional<ResumeFile> content = unpackResumeFile(bytes, &length);
    if (!content) {
        return {{}, textFault(bytes)};
    }
    const std::optional<SavedWork> work = readResumeXml(content->xml);
    if (!work) {
        return {{}, xmlFault(content->xml)};
    }
    const QString loss = lossFault(content->xml, *work);
    return {Configuration{*work, content->scenes},
            loss.isEmpty() ? pictureFault(bytes, *content, length) : loss};
}

} // namespace

ConfigurationReading readConfiguration(const QString& path)
{
    QString fault;
    const std::optional<QByteArray> bytes = readResumeFile(path, &fault);
    return bytes ? unpacked(*bytes) : ConfigurationReading{{}, fault};
}

std::optional<Configuration> readRemains(const QString& path)
{
    const std::optional<QByteArray> bytes = readResumeFile(path);
    const std::optional<ResumeFile> content = bytes ? unpackResumeFile(*bytes) : std::nullopt;
    const std::optional<SavedWork> work = content ? readResumeXml(content->xml) : std::nullopt;
    return work ? std::optional(Configuration{*work, content->scenes}) : std::nullopt;
}
