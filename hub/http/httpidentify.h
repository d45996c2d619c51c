#pragma once

#include "httpreadwrite.h"

/// Makes a hub show itself through its web API: checks that it has a password, logs in, asks for
/// its identification, and gives the token back. The outcome is seen on the hub only.
///
/// start() may be called any number of times.
class HttpIdentify : public HttpReadWrite
{
    Q_OBJECT

public:
    /// `address` is dotted IPv4 text, `password` the hub's password as the user typed it.
    HttpIdentify(const QString& address, const QString& password, QObject* parent);

private:
    QString m_token; ///< shared by the steps
};
