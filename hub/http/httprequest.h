#pragma once

#include <QString>

/// The texts that are written to a hub's web API. All of them are HTTP/1.1 requests to a path
/// below "/api/v0/" with an absolute target; a text is complete and goes out as UTF-8 in one
/// write. Header lines, their order and their case are what the hubs were tested with: nothing
/// here is left to a library.

/// The port of the web API; hubs have no other.
inline constexpr quint16 hubHttpPort = 80;

/// What a request's body is. The hub tells them apart by the Content-Type line.
enum class BodyType
{
    Json,
    Xml
};

namespace HttpRequest {

/// The first line: method, absolute target below "/api/v0/" at `address`, version, line end.
QString requestLine(const QString& method, const QString& address, const QString& path);

/// The header lines that say who asks: what is accepted and the bearer token (may be empty).
QString authorizedHeader(const QString& token);

/// A whole request that carries `body`: `line` from requestLine(), the fixed header lines with
/// the body's length in bytes, the body.
QString withBody(const QString& line, const QString& token, BodyType type, const QString& body);

/// Asks whether the hub has a password; the only request without any header line.
QString getStatus(const QString& address);

/// Asks for a token that lets the next requests pass.
QString getToken(const QString& address);

/// Logs in as the one account that hubs have. `digest` is passwordDigest() of the password.
QString postAuthenticate(const QString& address, const QString& token, const QString& digest);

/// Asks for the hub's identification, which makes it show itself.
QString getIdentification(const QString& address, const QString& token);

/// Ends the validity of `token`.
QString postInvalidate(const QString& address, const QString& token);

} // namespace HttpRequest

/// What stands for a password on the wire: the MD5 of its UTF-8 bytes as 32 lower-case
/// hexadecimal characters. Any text has one, the empty text too.
QString passwordDigest(const QString& password);
