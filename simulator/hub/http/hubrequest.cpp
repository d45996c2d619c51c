#include "hubrequest.h"

#include <QRegularExpression>
#include <array>

namespace {

struct Route
{
    Exchange exchange;
    const char* method;
    const char* path;
};

constexpr std::array routes = {
    Route{Exchange::Status, "GET", "auth/status"},
    Route{Exchange::Token, "GET", "auth/token"},
    Route{Exchange::SetPassword, "POST", "auth/validate"},
    Route{Exchange::LogIn, "POST", "auth/authenticate"},
    Route{Exchange::StartExport, "POST", "config/export/self/"},
    Route{Exchange::ReadExport, "GET", "config/export/self/"},
    Route{Exchange::PresetEntry, "PUT", "config/presets/"},
    Route{Exchange::Recall, "POST", "config/presets/recall"},
    Route{Exchange::Invalidate, "POST", "auth/token/invalidate"},
    Route{Exchange::Identification, "GET", "identification/self"},
};

/// The target without scheme, host and API root; a target in origin form is understood as well,
/// so that a wrongly written request still gets a useful reply.
QByteArray pathOf(const QByteArray& target)
{
    static const QRegularExpression form(QStringLiteral("^(?:http://[^/]*)?/api/v0/(.*)$"));
    return form.match(QString::fromLatin1(target)).captured(1).toLatin1();
}

QByteArray withoutSlash(const QByteArray& path)
{
    return path.endsWith('/') ? path.chopped(1) : path;
}

void routeFile(HubRequest& request, const QByteArray& path, const QString& ownStorage)
{
    static const QRegularExpression form(
        QStringLiteral("^config/presets/([0-9]{1,6})/storage/([^/]+)/xml$"));
    const QRegularExpressionMatch match = form.match(QString::fromUtf8(path));
    if (request.method() != "PUT" || !match.hasMatch()) {
        return;
    }
    request.presetNumber = match.captured(1).toInt();
    request.storage = match.captured(2);
    request.exchange = request.storage == ownStorage ? Exchange::HubFile : Exchange::DeviceFile;
}

QByteArray word(const QList<QByteArray>& lines, qsizetype index)
{
    return lines.isEmpty() ? QByteArray() : lines.front().split(' ').value(index);
}

} // namespace

QByteArray HubRequest::method() const
{
    return word(lines, 0);
}

QByteArray HubRequest::target() const
{
    return word(lines, 1);
}

std::optional<QByteArray> HubRequest::header(const QByteArray& name) const
{
    for (const QByteArray& line : lines.mid(1)) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && line.first(colon).compare(name, Qt::CaseInsensitive) == 0) {
            return line.mid(colon + 1).trimmed();
        }
    }
    return std::nullopt;
}

QByteArray HubRequest::bearer() const
{
    const QByteArray value = header("authorization").value_or(QByteArray());
    return value.toLower().startsWith("bearer ") ? value.mid(7).trimmed() : QByteArray();
}

void routeRequest(HubRequest& request, const QString& ownStorage)
{
    request.exchange = Exchange::UnknownRequest;
    const QByteArray path = pathOf(request.target());
    for (const Route& route : routes) {
        if (request.method() == route.method && withoutSlash(path) == withoutSlash(route.path)) {
            request.exchange = route.exchange;
            return;
        }
    }
    routeFile(request, path, ownStorage);
}

QByteArray canonicalPath(const HubRequest& request)
{
    for (const Route& route : routes) {
        if (route.exchange == request.exchange) {
            return route.path;
        }
    }
    return "config/presets/" + QByteArray::number(request.presetNumber) + "/storage/" +
           request.storage.toUtf8() + "/xml";
}

QByteArray canonicalMethod(Exchange exchange)
{
    for (const Route& route : routes) {
        if (route.exchange == exchange) {
            return route.method;
        }
    }
    return exchange == Exchange::UnknownRequest ? "" : "PUT";
}
