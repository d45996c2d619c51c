// Replies of a hub, in pieces.
//
// An input is the byte stream of one connection; each byte 0x1F in it is a place where the stream
// is cut and is no part of it.
//
// - The replies do not depend on the cuts, with the one exception that is wanted: a piece that
//   begins with "HTTP/1.1" makes the reader forget what came before. So the pieces fall into runs,
//   each beginning with such a piece (the first run with any piece), and the replies are those that
//   fresh readers find when each gets the bytes of one run at once.
//   The cut must be seen as the beginning of a piece: "HTTP/1.1" spread over two pieces is no
//   exception, and after a reply that was handed out there is nothing to forget.
// - In particular a stream in one-byte pieces gives the replies of the stream in one piece.
// - A reply handed out has a length other than 0 in its header and a body of that many UTF-16
//   units (none for a negative length).
// - Every text has a header and a body, which are parts of it; reading values from it ends well.
#include "fuzztarget.h"
#include "httpreply.h"
#include "replyreader.h"

#include <QList>
#include <QStringList>

#include <algorithm>

namespace {

constexpr char cut = '\x1f';

QStringList repliesOf(const QList<QByteArray>& pieces)
{
    ReplyReader reader;
    QStringList replies;
    for (const QByteArray& piece : pieces) {
        reader.feed(piece);
        while (const std::optional<QString> reply = reader.takeReply()) {
            replies.append(*reply);
        }
    }
    return replies;
}

// The pieces joined as far as no piece begins a new reply.
QList<QByteArray> runsOf(const QList<QByteArray>& pieces)
{
    QList<QByteArray> runs;
    for (const QByteArray& piece : pieces) {
        if (runs.isEmpty() || piece.startsWith("HTTP/1.1")) {
            runs.append(piece);
        } else {
            runs.last() += piece;
        }
    }
    return runs;
}

QStringList repliesOfRuns(const QList<QByteArray>& runs)
{
    QStringList replies;
    for (const QByteArray& run : runs) {
        replies += repliesOf({run});
    }
    return replies;
}

QList<QByteArray> singleBytes(const QByteArray& stream)
{
    QList<QByteArray> pieces;
    for (const char byte : stream) {
        pieces.append(QByteArray(1, byte));
    }
    return pieces;
}

void examineText(const QString& text)
{
    const QString header = HttpReply::header(text);
    const QString body = HttpReply::body(text);
    const QString emptyLine = QStringLiteral("\r\n\r\n");
    require(text.startsWith(header), "the header begins the text");
    require(!header.contains(emptyLine), "a header has no empty line");
    require(body.isEmpty() || text == header + emptyLine + body, "an empty line ends the header");
    require(HttpReply::isOk(text) == (HttpReply::status(text) == u"200"), "ok means 200");
    HttpReply::wantsClose(header);
    HttpReply::jsonInt(text, QStringLiteral("is-initialized"));
    HttpReply::jsonText(text, QStringLiteral("access-token"));
}

void examineReply(const QString& reply)
{
    const int length = HttpReply::contentLength(HttpReply::header(reply));
    require(length != 0, "a reply without a length is not handed out");
    require(HttpReply::body(reply).size() == std::max(0, length), "a body has its length");
    examineText(reply);
}

} // namespace

void examine(const QByteArray& input)
{
    const QList<QByteArray> pieces = input.split(cut);
    const QByteArray stream = pieces.join();
    const QStringList whole = repliesOf({stream});
    require(repliesOf(singleBytes(stream)) == whole, "single bytes give the same replies");
    require(repliesOf(pieces) == repliesOfRuns(runsOf(pieces)), "cuts give the same replies");
    for (const QString& reply : whole) {
        examineReply(reply);
    }
    examineText(QString::fromUtf8(stream));
}
