#include "hubreply.h"

#include <QJsonDocument>
#include <array>

namespace {

struct Reason
{
    int status;
    const char* text;
};

constexpr std::array reasons = {
    Reason{200, "OK"},
    Reason{201, "Created"},
    Reason{202, "Accepted"},
    Reason{204, "No Content"},
    Reason{400, "Bad Request"},
    Reason{401, "Unauthorized"},
    Reason{403, "Forbidden"},
    Reason{404, "Not Found"},
    Reason{409, "Conflict"},
    Reason{500, "Internal Server Error"},
    Reason{503, "Service Unavailable"},
};

QByteArray reasonOf(int status)
{
    for (const Reason& reason : reasons) {
        if (reason.status == status) {
            return reason.text;
        }
    }
    return "Status";
}

} // namespace

HubReply HubReply::json(int status, const QJsonObject& body, const QString& note)
{
    HubReply reply = content("application/json;charset=utf-8",
                             QJsonDocument(body).toJson(QJsonDocument::Compact));
    reply.status = status;
    reply.note = note;
    return reply;
}

HubReply HubReply::error(int status, const QString& reason)
{
    return json(status, {{QStringLiteral("error"), reason}}, QStringLiteral("refused: ") + reason);
}

HubReply HubReply::content(const QByteArray& type, const QByteArray& body)
{
    HubReply reply;
    reply.headers = {{"Content-Type", type}, {"Content-Length", {}}, {"Connection", "keep-alive"}};
    reply.setBody(body);
    return reply;
}

void HubReply::setBody(const QByteArray& newBody)
{
    body = newBody;
    setHeader("Content-Length", QByteArray::number(body.size()));
}

void HubReply::setHeader(const QByteArray& name, const QByteArray& value)
{
    const qsizetype index = indexOf(name);
    if (index < 0) {
        headers.append({name, value});
    } else {
        headers[index].value = value;
    }
}

qsizetype HubReply::indexOf(const QByteArray& name) const
{
    for (qsizetype index = 0; index < headers.size(); ++index) {
        if (headers.at(index).name == name) {
            return index;
        }
    }
    return -1;
}

QByteArray HubReply::headerBytes() const
{
    QByteArray bytes = "HTTP/1.1 " + QByteArray::number(status) + ' ' + reasonOf(status) + "\r\n";
    for (const Header& header : headers) {
        bytes += header.name + ": " + header.value + "\r\n";
    }
    return bytes + "\r\n";
}

QByteArray HubReply::bytes() const
{
    return headerBytes() + body;
}
