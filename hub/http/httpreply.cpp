#include "httpreply.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringList>

namespace {

constexpr qsizetype longestStatusText = 80;

QString lineEnd()
{
    return QStringLiteral("\r\n");
}

QString emptyLine()
{
    return QStringLiteral("\r\n\r\n");
}

QJsonValue jsonValue(const QString& reply, const QString& key)
{
    return QJsonDocument::fromJson(HttpReply::body(reply).toUtf8()).object().value(key);
}

} // namespace

QString HttpReply::header(const QString& reply)
{
    return reply.left(reply.indexOf(emptyLine()));
}

QString HttpReply::body(const QString& reply)
{
    const qsizetype end = reply.indexOf(emptyLine());
    if (end < 0) {
        return {};
    }
    QString rest = reply.mid(end + emptyLine().size());
    return rest.contains(emptyLine()) ? QString() : rest;
}

QString HttpReply::status(const QString& reply)
{
    return reply.left(reply.indexOf(lineEnd())).section(u' ', 1, 1);
}

QString HttpReply::statusText(const QString& reply)
{
    QString text = reply.left(reply.indexOf(lineEnd())).section(u' ', 1);
    for (QChar& character : text) {
        if (!character.isPrint()) {
            character = u' ';
        }
    }
    return text.simplified().left(longestStatusText);
}

bool HttpReply::isOk(const QString& reply)
{
    return status(reply) == QLatin1String("200");
}

int HttpReply::contentLength(const QString& header)
{
    QString last;
    for (const QString& line : header.split(lineEnd())) {
        if (line.startsWith(QLatin1String("Content-Length:"))) {
            last = line;
        }
    }
    const QStringList pieces = last.split(u':');
    return pieces.size() == 2 ? pieces.at(1).simplified().toInt() : 0;
}

bool HttpReply::wantsClose(const QString& header)
{
    const QString name = QStringLiteral("Connection:");
    for (const QString& line : header.split(lineEnd())) {
        if (line.startsWith(name) && line.mid(name.size()).simplified() == QLatin1String("close")) {
            return true;
        }
    }
    return false;
}

int HttpReply::jsonInt(const QString& reply, const QString& key)
{
    return jsonValue(reply, key).toInt();
}

QString HttpReply::jsonText(const QString& reply, const QString& key)
{
    return jsonValue(reply, key).toString();
}
