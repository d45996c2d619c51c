#include "httprequest.h"

#include <QCryptographicHash>

namespace {

QString contentType(BodyType type)
{
    return type == BodyType::Xml
               ? QStringLiteral("Content-Type: application/xml;charset=utf-8\r\n")
               : QStringLiteral("Content-Type: application/json;charset=utf-8\r\n");
}

QString keepAlive()
{
    return QStringLiteral("Connection: keep-alive\r\n");
}

QString endOfHeader()
{
    return QStringLiteral("\r\n");
}

} // namespace

// Texts of people and hubs are put in by one arg() call each, never by a chain: a name such as
// "50%2" would be taken for a placeholder by the next call.

QString HttpRequest::requestLine(const QString& method, const QString& address, const QString& path)
{
    return QStringLiteral("%1 http://%2/api/v0/%3 HTTP/1.1\r\n").arg(method, address, path);
}

QString HttpRequest::authorizedHeader(const QString& token)
{
    return QStringLiteral("Accept: application/json, text/plain\r\nauthorization: bearer %1\r\n")
        .arg(token);
}

QString HttpRequest::withBody(const QString& line, const QString& token, BodyType type,
                              const QString& body)
{
    const QString length = QStringLiteral("Content-Length: %1\r\n").arg(body.toUtf8().size());
    return line + authorizedHeader(token) + contentType(type) + length + keepAlive() +
           endOfHeader() + body;
}

QString HttpRequest::getStatus(const QString& address)
{
    return requestLine(QStringLiteral("GET"), address, QStringLiteral("auth/status")) +
           endOfHeader();
}

QString HttpRequest::getToken(const QString& address)
{
    return requestLine(QStringLiteral("GET"), address, QStringLiteral("auth/token")) + keepAlive() +
           endOfHeader();
}

QString HttpRequest::postAuthenticate(const QString& address, const QString& token,
                                      const QString& digest)
{
    const QString line =
        requestLine(QStringLiteral("POST"), address, QStringLiteral("auth/authenticate"));
    const QString body = QStringLiteral(R"({"user-id": "%1", "password": "%2"})")
                             .arg(QStringLiteral("admin"), digest);
    return withBody(line, token, BodyType::Json, body);
}

QString HttpRequest::getIdentification(const QString& address, const QString& token)
{
    return requestLine(QStringLiteral("GET"), address, QStringLiteral("identification/self")) +
           authorizedHeader(token) + QStringLiteral("Content-Type: text/plain;charset=utf-8\r\n") +
           keepAlive() + endOfHeader();
}

QString HttpRequest::postInvalidate(const QString& address, const QString& token)
{
    const QString line =
        requestLine(QStringLiteral("POST"), address, QStringLiteral("auth/token/invalidate"));
    const QString body =
        QStringLiteral(R"({"access-token": "%1", "status": "invalid"})").arg(token);
    return withBody(line, token, BodyType::Json, body);
}

QString passwordDigest(const QString& password)
{
    const QByteArray hash = QCryptographicHash::hash(password.toUtf8(), QCryptographicHash::Md5);
    return QString::fromLatin1(hash.toHex());
}
