#include "installrequest.h"

#include "httprequest.h"

namespace {

QString exportPath()
{
    return QStringLiteral("config/export/self/");
}

} // namespace

QString InstallRequest::validate(const QString& address, const QString& token,
                                 const QString& digest)
{
    const QString line =
        HttpRequest::requestLine(QStringLiteral("POST"), address, QStringLiteral("auth/validate"));
    const QString body = QStringLiteral(R"({"admin": "%1"})").arg(digest);
    return HttpRequest::withBody(line, token, BodyType::Json, body);
}

QString InstallRequest::startExport(const QString& address, const QString& token)
{
    const QString line = HttpRequest::requestLine(QStringLiteral("POST"), address, exportPath());
    return HttpRequest::withBody(line, token, BodyType::Json, QStringLiteral(R"({"export":1})"));
}

QString InstallRequest::fetchExport(const QString& address, const QString& token)
{
    return HttpRequest::requestLine(QStringLiteral("GET"), address, exportPath()) +
           HttpRequest::authorizedHeader(token) +
           QStringLiteral("Content-Type: application/json;charset=utf-8\r\n"
                          "Connection: keep-alive\r\n"
                          "\r\n");
}

QString InstallRequest::presetEntry(const QString& address, const QString& token, int number,
                                    const QString& name)
{
    const QString line =
        HttpRequest::requestLine(QStringLiteral("PUT"), address, QStringLiteral("config/presets/"));
    // One arg() call for both values: a name may hold what looks like a placeholder.
    const QString body = QStringLiteral(R"({"description": "%1", "preset-number": %2, )"
                                        R"("source-type": 2, "external-source": ""})")
                             .arg(escapedForJson(name), QString::number(number));
    return HttpRequest::withBody(line, token, BodyType::Json, body);
}

QString InstallRequest::presetFile(const QString& address, const QString& token, int number,
                                   const QString& storageName, const QString& file)
{
    const QString path = QStringLiteral("config/presets/%1/storage/%2/xml")
                             .arg(QString::number(number), storageName);
    const QString line = HttpRequest::requestLine(QStringLiteral("PUT"), address, path);
    return HttpRequest::withBody(line, token, BodyType::Xml, file);
}

QString InstallRequest::recall(const QString& address, const QString& token, int number)
{
    const QString line = HttpRequest::requestLine(QStringLiteral("POST"), address,
                                                  QStringLiteral("config/presets/recall"));
    const QString body = QStringLiteral(R"({"preset-number": %1})").arg(number);
    return HttpRequest::withBody(line, token, BodyType::Json, body);
}

QString escapedForJson(const QString& text)
{
    QString escaped = text;
    escaped.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
    escaped.replace(QStringLiteral("\""), QStringLiteral("\\\""));
    return escaped;
}
