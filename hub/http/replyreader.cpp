#include "replyreader.h"

#include "httpreply.h"

#include <QStringDecoder>

#include <algorithm>

namespace {

constexpr QByteArrayView newReply = "HTTP/1.1";
constexpr QStringView emptyLine = u"\r\n\r\n";

/// How many bytes the UTF-8 character takes that begins with this byte.
int characterLength(uchar first)
{
    if (first < 0xC0) {
        return 1;
    }
    return first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
}

/// The number of bytes before a character whose rest is still to come; all when there is none.
qsizetype completeLength(const QByteArray& bytes)
{
    const qsizetype longest = std::min<qsizetype>(bytes.size(), 3);
    for (qsizetype back = 1; back <= longest; ++back) {
        const auto byte = static_cast<uchar>(bytes.at(bytes.size() - back));
        const bool continues = (byte & 0xC0) == 0x80;
        if (!continues) {
            return characterLength(byte) > back ? bytes.size() - back : bytes.size();
        }
    }
    return bytes.size();
}

} // namespace

void ReplyReader::feed(const QByteArray& bytes)
{
    if (bytes.startsWith(newReply)) {
        reset();
    }
    if (m_stage != Stage::NeverComplete) {
        m_text += decode(bytes);
    }
}

std::optional<QString> ReplyReader::takeReply()
{
    if (m_stage == Stage::Header) {
        readHeader();
    }
    if (m_stage == Stage::Body) {
        readBody();
    }
    if (m_stage != Stage::Complete) {
        return std::nullopt;
    }
    QString reply = m_text;
    reset();
    return reply;
}

void ReplyReader::reset()
{
    m_undecoded.clear();
    m_text.clear();
    m_searched = 0;
    m_stage = Stage::Header;
}

// QStringDecoder keeps incomplete characters too, but decodes broken ones differently depending
// on where they are cut; so only whole characters are given to it.
QString ReplyReader::decode(const QByteArray& bytes)
{
    const QByteArray all = m_undecoded + bytes;
    const qsizetype length = completeLength(all);
    m_undecoded = all.sliced(length);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless |
                                                     QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(all).first(length));
}

void ReplyReader::readHeader()
{
    const qsizetype headerEnd = m_text.indexOf(emptyLine, m_searched);
    if (headerEnd < 0) {
        m_searched = std::max<qsizetype>(0, m_text.size() - (emptyLine.size() - 1));
        if (m_text.size() > maxLength) {
            giveUp();
        }
        return;
    }
    const int length = HttpReply::contentLength(m_text.first(headerEnd));
    if (length == 0 || length > maxLength) {
        giveUp();
        return;
    }
    // A negative length leaves nothing to wait for.
    m_stage = length < 0 ? Stage::Complete : Stage::Body;
    m_bodyStart = headerEnd + emptyLine.size();
    m_length = length;
}

void ReplyReader::readBody()
{
    const QStringView body = QStringView(m_text).sliced(m_bodyStart);
    if (body.size() < m_length) {
        return;
    }
    if (body.contains(emptyLine)) {
        giveUp();
        return;
    }
    m_stage = Stage::Complete;
}

void ReplyReader::giveUp()
{
    m_text.clear();
    m_stage = Stage::NeverComplete;
}
