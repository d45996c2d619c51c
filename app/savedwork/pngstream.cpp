#include "pngstream.h"

#include <QtEndian>

#include <array>

namespace {

constexpr qsizetype signatureSize = 8;
constexpr qsizetype numberSize = 4;
constexpr qsizetype chunkFrame = 3 * numberSize; // length, type and checksum around the data
constexpr qsizetype headerSize = 13;

using CrcTable = std::array<quint32, 256>;

constexpr CrcTable crcTable()
{
    CrcTable table = {};
    for (quint32 byte = 0; byte < table.size(); ++byte) {
        quint32 rest = byte;
        for (int bit = 0; bit < 8; ++bit) {
            rest = (rest & 1U) != 0 ? 0xedb88320U ^ (rest >> 1U) : rest >> 1U;
        }
        table[byte] = rest;
    }
    return table;
}

quint32 crc(QByteArrayView bytes)
{
    static constexpr CrcTable table = crcTable();
    quint32 value = 0xffffffffU;
    for (const char byte : bytes) {
        value = table[(value ^ quint8(byte)) & 0xffU] ^ (value >> 8U);
    }
    return ~value;
}

quint32 numberAt(QByteArrayView bytes, qsizetype at)
{
    return qFromBigEndian<quint32>(bytes.sliced(at, numberSize).data());
}

struct Chunk
{
    QByteArrayView type;
    QByteArrayView data;
};

/// The whole, undamaged chunk at the beginning of `bytes`.
std::optional<Chunk> readChunk(QByteArrayView bytes)
{
    if (bytes.size() < chunkFrame || numberAt(bytes, 0) > bytes.size() - chunkFrame) {
        return std::nullopt;
    }
    const auto length = qsizetype(numberAt(bytes, 0));
    const QByteArrayView checked = bytes.sliced(numberSize, numberSize + length);
    if (numberAt(bytes, 2 * numberSize + length) != crc(checked)) {
        return std::nullopt;
    }
    return Chunk{checked.first(numberSize), checked.sliced(numberSize)};
}

std::optional<QSize> readHeader(const Chunk& chunk)
{
    if (chunk.type != "IHDR" || chunk.data.size() != headerSize) {
        return std::nullopt;
    }
    const QSize size(int(numberAt(chunk.data, 0)), int(numberAt(chunk.data, numberSize)));
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

} // namespace

std::optional<PngExtent> measurePng(QByteArrayView bytes)
{
    if (!bytes.startsWith("\x89PNG\r\n\x1a\n")) {
        return std::nullopt;
    }
    PngExtent extent{signatureSize, {}};
    while (const std::optional<Chunk> chunk = readChunk(bytes.sliced(extent.length))) {
        if (extent.length == signatureSize) {
            const std::optional<QSize> size = readHeader(*chunk);
            if (!size) {
                return std::nullopt;
            }
            extent.size = *size;
        }
        if (chunk->type == "zTXt" || chunk->type == "iTXt") {
            return std::nullopt;
        }
        extent.length += chunkFrame + chunk->data.size();
        if (chunk->type == "IEND") {
            return extent;
        }
    }
    return std::nullopt;
}
