#include "hubrequestparser.h"

namespace {

// Far above anything a peer has to send, low enough to keep a stray peer from filling the memory.
constexpr qsizetype maxHeaderLength = 0x10000;
constexpr qlonglong maxBodyLength = 16LL * 1024 * 1024;

RequestReading malformed(const QString& problem)
{
    RequestReading reading;
    reading.verdict = RequestReading::Verdict::Malformed;
    reading.problem = problem;
    return reading;
}

QList<QByteArray> splitLines(const QByteArray& header)
{
    QList<QByteArray> lines;
    qsizetype start = 0;
    for (qsizetype end = header.indexOf("\r\n"); end >= 0; end = header.indexOf("\r\n", start)) {
        lines.append(header.mid(start, end - start));
        start = end + 2;
    }
    lines.append(header.mid(start));
    return lines;
}

RequestReading readIncomplete(const QByteArray& bytes)
{
    if (bytes.size() > maxHeaderLength) {
        return malformed(QStringLiteral("header longer than %1 bytes").arg(maxHeaderLength));
    }
    if (bytes.contains("\n\n")) {
        return malformed(QStringLiteral("lines end in LF instead of CR LF"));
    }
    return {};
}

bool isRequestLine(const QByteArray& line)
{
    const QList<QByteArray> words = line.split(' ');
    return words.size() >= 3 && !words.at(0).isEmpty() && words.last().startsWith("HTTP/");
}

/// The announced length of the body; negative when it cannot be used.
qlonglong announcedLength(const HubRequest& request)
{
    const std::optional<QByteArray> value = request.header("content-length");
    if (!value) {
        return 0;
    }
    bool ok = false;
    const qlonglong length = value->toLongLong(&ok);
    return ok && length <= maxBodyLength ? length : -1;
}

} // namespace

RequestReading readRequest(const QByteArray& bytes)
{
    const qsizetype headerEnd = bytes.indexOf("\r\n\r\n");
    if (headerEnd < 0) {
        return readIncomplete(bytes);
    }
    RequestReading reading;
    reading.request.lines = splitLines(bytes.first(headerEnd));
    if (!isRequestLine(reading.request.lines.front())) {
        return malformed(QStringLiteral("the first line is no HTTP request line"));
    }
    const qlonglong length = announcedLength(reading.request);
    if (length < 0) {
        return malformed(QStringLiteral("the Content-Length line holds no usable length"));
    }
    const qsizetype bodyStart = headerEnd + 4;
    if (bytes.size() - bodyStart < length) {
        return reading;
    }
    reading.request.body = bytes.mid(bodyStart, length);
    reading.consumed = bodyStart + length;
    reading.verdict = RequestReading::Verdict::Complete;
    return reading;
}
