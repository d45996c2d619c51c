#pragma once

#include "exchange.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// One HTTP request as a hub received it.
struct HubRequest
{
    /// The header part's lines without their ends, the request line first.
    QList<QByteArray> lines = {};
    QByteArray body = {};

    /// What the request asks for; the next fields are set where the target names them.
    Exchange exchange = Exchange::UnknownRequest;
    int presetNumber = 0;
    QString storage = {};

    /// First and second word of the request line; empty when it has none.
    QByteArray method() const;
    QByteArray target() const;

    /// The value of the first header line of that name, which is compared without regard to case;
    /// nothing when no line has it.
    std::optional<QByteArray> header(const QByteArray& name) const;

    /// The bearer token that the request carries; empty when it carries none.
    QByteArray bearer() const;
};

/// Finds out what the request asks for and sets `exchange`, `presetNumber` and `storage`.
/// A file under `ownStorage` is the hub's own, any other one a device's.
void routeRequest(HubRequest& request, const QString& ownStorage);

/// The path below the API's root that a request of this kind names when it is well written.
QByteArray canonicalPath(const HubRequest& request);

/// The method of a well-written request of this kind; empty for unknown requests.
QByteArray canonicalMethod(Exchange exchange);
