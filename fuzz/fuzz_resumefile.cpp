// The bytes of a resume file: text, number of layouts, and of each layout number, text and picture.
//
// - Whatever the bytes, reading them ends soon and takes little memory (the fuzzer's limits watch
//   both); no more layouts and no larger pictures come out than a wizard could have saved.
// - What is read and written again reads the same, picture by picture and pixel by pixel.
//
// Each input is read as it is and with the checksums of its pictures put right, because next to no
// invented picture has right ones.
#include "fuzztarget.h"
#include "guiapplication.h"
#include "resumefile.h"

#include <QImage>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr qsizetype maxScenes = 100;
constexpr int maxSide = 256;
constexpr qsizetype numberSize = 4;

quint32 crc(const QByteArray& bytes)
{
    quint32 value = 0xffffffffU;
    for (const char byte : bytes) {
        value ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit) {
            value = (value & 1U) != 0 ? 0xedb88320U ^ (value >> 1U) : value >> 1U;
        }
    }
    return ~value;
}

// Puts right the checksum of each chunk from `at` on; a chunk is length, type, data, checksum.
void repairChunks(QByteArray& bytes, qsizetype at)
{
    while (at + 2 * numberSize <= bytes.size()) {
        const qsizetype length = qFromBigEndian<quint32>(bytes.constData() + at);
        const qsizetype checked = at + numberSize;
        const qsizetype checksum = checked + numberSize + length;
        if (checksum + numberSize > bytes.size()) {
            return;
        }
        const quint32 right = crc(bytes.sliced(checked, numberSize + length));
        qToBigEndian(right, bytes.data() + checksum);
        at = checksum + numberSize;
    }
}

QByteArray repaired(const QByteArray& input)
{
    const QByteArray signature("\x89PNG\r\n\x1a\n");
    QByteArray bytes(input.constData(), input.size());
    qsizetype found = bytes.indexOf(signature);
    while (found >= 0) {
        repairChunks(bytes, found + signature.size());
        found = bytes.indexOf(signature, found + 1);
    }
    return bytes;
}

QImage pixels(const QPixmap& picture)
{
    return picture.toImage().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

bool isSame(const SceneInfo& a, const SceneInfo& b)
{
    return a.number == b.number && a.roomGroup == b.roomGroup &&
           pixels(a.thumbnail) == pixels(b.thumbnail);
}

void examineFile(const QByteArray& bytes)
{
    const std::optional<ResumeFile> content = unpackResumeFile(bytes);
    if (!content) {
        return;
    }
    require(content->scenes.size() <= maxScenes, "no more layouts than a wizard could save");
    for (const SceneInfo& scene : content->scenes) {
        require(scene.thumbnail.width() <= maxSide && scene.thumbnail.height() <= maxSide,
                "no larger pictures than a wizard could save");
    }
    const std::optional<ResumeFile> again = unpackResumeFile(packResumeFile(*content));
    require(again.has_value(), "what was read and written again is accepted");
    require(again->xml == content->xml, "the text written again reads the same");
    require(std::equal(content->scenes.begin(), content->scenes.end(), again->scenes.begin(),
                       again->scenes.end(), isSame),
            "layouts written again read the same");
}

} // namespace

void examine(const QByteArray& input)
{
    provideGuiApplication();
    examineFile(input);
    const QByteArray whole = repaired(input);
    if (whole != input) {
        examineFile(whole);
    }
}
