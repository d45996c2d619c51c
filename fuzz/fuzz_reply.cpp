// Replies of a hub, in pieces.
//
// An input is the byte stream of one connection; each byte 0x1F in it is a place where the stream
// is cut and is no part of it.
//
// - A piece that begins with "HTTP/1.1" makes the reader forget what came before. So the pieces are
//   runs, each beginning with such a piece (the first run with any piece), and the replies are
//   those that a fresh reader finds in each run.
// - A run that is one reply, no longer than it announces, gives this reply wherever it is cut. What
//   comes of a run that brings more depends on the cuts: a reply is handed out, with all that has
//   arrived, as soon as it is long enough.
// - A reply handed out has a length other than 0 in its header and a body of at least that many
//   UTF-16 units.
// - Every text has a header and a body, which are parts of it; reading values from it ends well.
#include "fuzztarget.h"
#include "httpreply.h"
#include "replyreader.h"

#include <QList>
#include <QStringList>

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

// The pieces up to the next one that begins a new reply.
QList<QList<QByteArray>> runsOf(const QList<QByteArray>& pieces)
{
    QList<QList<QByteArray>> runs;
    for (const QByteArray& piece : pieces) {
        if (runs.isEmpty() || piece.startsWith("HTTP/1.1")) {
            runs.append(QList<QByteArray>());
        }
        runs.last().append(piece);
    }
    return runs;
}

QStringList repliesOfRuns(const QList<QList<QByteArray>>& runs)
{
    QStringList replies;
    for (const QList<QByteArray>& run : runs) {
        replies += repliesOf(run);
    }
    return replies;
}

bool bringsWhatItAnnounces(const QString& reply)
{
    return HttpReply::body(reply).size() == HttpReply::contentLength(HttpReply::header(reply));
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
    require(HttpReply::body(reply).size() >= length, "a body has its length");
    examineText(reply);
}

void examineRun(const QList<QByteArray>& pieces)
{
    const QByteArray stream = pieces.join();
    const QStringList whole = repliesOf({stream});
    require(whole.size() <= 1, "one arrival is one reply at most");
    if (!whole.isEmpty() && bringsWhatItAnnounces(whole.first())) {
        require(repliesOf(singleBytes(stream)) == whole, "single bytes give the same reply");
        require(repliesOf(pieces) == whole, "cuts give the same reply");
    }
}

} // namespace

void examine(const QByteArray& input)
{
    const QList<QByteArray> pieces = input.split(cut);
    const QStringList replies = repliesOf(pieces);
    const QList<QList<QByteArray>> runs = runsOf(pieces);
    require(replies == repliesOfRuns(runs), "a new reply forgets what came before");
    for (const QList<QByteArray>& run : runs) {
        examineRun(run);
    }
    for (const QString& reply : replies) {
        examineReply(reply);
    }
    examineText(QString::fromUtf8(pieces.join()));
}
