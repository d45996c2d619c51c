#include "requestcheck.h"

#include "bodycheck.h"
#include "redaction.h"

namespace {

constexpr const char* bearerLine = "authorization: bearer ";

QByteArray requestLine(const HubRequest& request, const QString& address)
{
    return canonicalMethod(request.exchange) + " http://" + address.toLatin1() + "/api/v0/" +
           canonicalPath(request) + " HTTP/1.1";
}

bool isFile(Exchange exchange)
{
    return exchange == Exchange::HubFile || exchange == Exchange::DeviceFile;
}

QByteArray contentTypeLine(Exchange exchange)
{
    return isFile(exchange) ? "Content-Type: application/xml;charset=utf-8"
                            : "Content-Type: application/json;charset=utf-8";
}

/// The lines of a request that carries a body.
QList<QByteArray> linesWithBody(const HubRequest& request)
{
    return {"Accept: application/json, text/plain", bearerLine, contentTypeLine(request.exchange),
            "Content-Length: " + QByteArray::number(request.body.size()), "Connection: keep-alive"};
}

/// The header lines after the request line. The bearer line stands without its token.
QList<QByteArray> prescribedLines(const HubRequest& request)
{
    switch (request.exchange) {
    case Exchange::Status:
        return {};
    case Exchange::Token:
        return {"Connection: keep-alive"};
    case Exchange::ReadExport:
        return {"Accept: application/json, text/plain", bearerLine,
                contentTypeLine(request.exchange), "Connection: keep-alive"};
    case Exchange::Identification:
        return {"Accept: application/json, text/plain", bearerLine,
                "Content-Type: text/plain;charset=utf-8", "Connection: keep-alive"};
    default:
        return linesWithBody(request);
    }
}

bool isSame(const QByteArray& prescribed, const QByteArray& given)
{
    return prescribed == bearerLine ? given.startsWith(bearerLine) : prescribed == given;
}

QString shownLine(const QByteArray& line)
{
    return line == bearerLine ? QStringLiteral("\"authorization: bearer <token>\"")
                              : QStringLiteral("\"%1\"").arg(redacted(line));
}

QString lineDifference(qsizetype number, const QString& prescribed, const QString& given)
{
    return QStringLiteral("header line %1: expected %2, got %3")
        .arg(QString::number(number), prescribed, given);
}

QStringList lineDifferences(const QList<QByteArray>& prescribed, const QList<QByteArray>& given)
{
    QStringList differences;
    const QString nothing = QStringLiteral("nothing");
    for (qsizetype index = 0; index < qMax(prescribed.size(), given.size()); ++index) {
        const bool isMissing = index >= given.size();
        const bool isTooMany = index >= prescribed.size();
        if (!isMissing && !isTooMany && isSame(prescribed.at(index), given.at(index))) {
            continue;
        }
        differences.append(lineDifference(index + 1,
                                          isTooMany ? nothing : shownLine(prescribed.at(index)),
                                          isMissing ? nothing : shownLine(given.at(index))));
    }
    return differences;
}

} // namespace

QStringList requestDifferences(const HubRequest& request, const QString& address)
{
    if (request.exchange == Exchange::UnknownRequest) {
        return {QStringLiteral("unknown request \"%1\"").arg(redacted(request.lines.front()))};
    }
    QStringList differences = lineDifferences(
        QList<QByteArray>{requestLine(request, address)} + prescribedLines(request), request.lines);
    if (const std::optional<QString> difference = bodyDifference(request.exchange, request.body)) {
        differences.append(*difference);
    }
    return differences;
}
