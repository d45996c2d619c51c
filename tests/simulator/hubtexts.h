#pragma once

#include <QByteArray>

/// Requests as a hub wants them, written out by hand, for tests of the hub's side.
namespace HubTexts {

/// The hash of the password "secret".
constexpr const char* secretHash = "5ebe2294ecd0e0f08eab7690d2a6ee69";

QByteArray status(const QByteArray& address);
QByteArray token(const QByteArray& address);
/// A request with a body; `path` below the API's root.
QByteArray withBody(const QByteArray& method, const QByteArray& address, const QByteArray& path,
                    const QByteArray& token, const QByteArray& body,
                    const QByteArray& contentType = "application/json;charset=utf-8");
QByteArray setPassword(const QByteArray& address, const QByteArray& token,
                       const QByteArray& hash = secretHash);
QByteArray logIn(const QByteArray& address, const QByteArray& token,
                 const QByteArray& hash = secretHash);
QByteArray startExport(const QByteArray& address, const QByteArray& token);
QByteArray readExport(const QByteArray& address, const QByteArray& token);
QByteArray presetEntry(const QByteArray& address, const QByteArray& token, int number,
                       const QByteArray& escapedName);
QByteArray file(const QByteArray& address, const QByteArray& token, int number,
                const QByteArray& storage, const QByteArray& xml);
QByteArray recall(const QByteArray& address, const QByteArray& token, int number);
QByteArray invalidate(const QByteArray& address, const QByteArray& token);
QByteArray identification(const QByteArray& address, const QByteArray& token);

/// A preset file of a hub without peripherals.
QByteArray hubXml();
/// A preset file of a peripheral whose name is not set.
QByteArray deviceXml();

/// The status code and the body of a reply, and the token in it.
QByteArray statusOf(const QByteArray& reply);
QByteArray bodyOf(const QByteArray& reply);
QByteArray tokenIn(const QByteArray& reply);

} // namespace HubTexts
