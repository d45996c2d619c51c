#include "hubtexts.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace HubTexts {

QByteArray status(const QByteArray& address)
{
    return "GET http://" + address + "/api/v0/auth/status HTTP/1.1\r\n\r\n";
}

QByteArray token(const QByteArray& address)
{
    return "GET http://" + address +
           "/api/v0/auth/token HTTP/1.1\r\nConnection: keep-alive\r\n\r\n";
}

QByteArray withBody(const QByteArray& method, const QByteArray& address, const QByteArray& path,
                    const QByteArray& token, const QByteArray& body, const QByteArray& contentType)
{
    return method + " http://" + address + "/api/v0/" + path +
           " HTTP/1.1\r\nAccept: application/json, text/plain\r\nauthorization: bearer " + token +
           "\r\nContent-Type: " + contentType +
           "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\nConnection: keep-alive\r\n\r\n" + body;
}

QByteArray setPassword(const QByteArray& address, const QByteArray& token, const QByteArray& hash)
{
    return withBody("POST", address, "auth/validate", token, "{\"admin\": \"" + hash + "\"}");
}

QByteArray logIn(const QByteArray& address, const QByteArray& token, const QByteArray& hash)
{
    return withBody("POST", address, "auth/authenticate", token,
                    R"({"user-id": "admin", "password": ")" + hash + "\"}");
}

QByteArray startExport(const QByteArray& address, const QByteArray& token)
{
    return withBody("POST", address, "config/export/self/", token, "{\"export\":1}");
}

QByteArray readExport(const QByteArray& address, const QByteArray& token)
{
    return "GET http://" + address +
           "/api/v0/config/export/self/ HTTP/1.1\r\n"
           "Accept: application/json, text/plain\r\nauthorization: bearer " +
           token +
           "\r\nContent-Type: application/json;charset=utf-8\r\nConnection: keep-alive\r\n\r\n";
}

QByteArray presetEntry(const QByteArray& address, const QByteArray& token, int number,
                       const QByteArray& escapedName)
{
    return withBody("PUT", address, "config/presets/", token,
                    "{\"description\": \"" + escapedName +
                        "\", \"preset-number\": " + QByteArray::number(number) +
                        ", \"source-type\": 2, \"external-source\": \"\"}");
}

QByteArray file(const QByteArray& address, const QByteArray& token, int number,
                const QByteArray& storage, const QByteArray& xml)
{
    return withBody("PUT", address,
                    "config/presets/" + QByteArray::number(number) + "/storage/" + storage + "/xml",
                    token, xml, "application/xml;charset=utf-8");
}

QByteArray recall(const QByteArray& address, const QByteArray& token, int number)
{
    return withBody("POST", address, "config/presets/recall", token,
                    "{\"preset-number\": " + QByteArray::number(number) + "}");
}

QByteArray invalidate(const QByteArray& address, const QByteArray& token)
{
    return withBody("POST", address, "auth/token/invalidate", token,
                    "{\"access-token\": \"" + token + "\", \"status\": \"invalid\"}");
}

QByteArray identification(const QByteArray& address, const QByteArray& token)
{
    return "GET http://" + address +
           "/api/v0/identification/self HTTP/1.1\r\n"
           "Accept: application/json, text/plain\r\nauthorization: bearer " +
           token + "\r\nContent-Type: text/plain;charset=utf-8\r\nConnection: keep-alive\r\n\r\n";
}

QByteArray hubXml()
{
    QByteArray xml = "<provisioning>\n <config";
    for (int number = 1; number <= 24; ++number) {
        xml += " peripheral.mac-addr" + QByteArray::number(number) + "=\"00:00:00:00:00:00\"";
    }
    for (int number = 1; number <= 24; ++number) {
        xml += " peripheral.position" + QByteArray::number(number) + "=\"1\"";
    }
    return xml + "/>\n</provisioning>\n";
}

QByteArray deviceXml()
{
    return "<provisioning>\n <config/>\n</provisioning>\n";
}

QByteArray statusOf(const QByteArray& reply)
{
    return reply.split(' ').value(1);
}

QByteArray bodyOf(const QByteArray& reply)
{
    const qsizetype headerEnd = reply.indexOf("\r\n\r\n");
    return headerEnd < 0 ? QByteArray() : reply.mid(headerEnd + 4);
}

QByteArray tokenIn(const QByteArray& reply)
{
    return QJsonDocument::fromJson(bodyOf(reply))
        .object()
        .value(QLatin1String("access-token"))
        .toString()
        .toLatin1();
}

} // namespace HubTexts
