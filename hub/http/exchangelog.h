#pragma once

#include "blackout.h"

#include <QFile>

/// Writes down what is said between the wizard and the hubs, one JSON object in a line for each
/// request and each reply, as it happens. Secrets are blacked out (see Blackout).
///
/// Keys: "time" (local, with milliseconds), "hub" (its address), "kind" ("request" or "reply"),
/// "of" (the first line of the request), "line" (of the reply; its status), "headers", "body".
class ExchangeLog
{
public:
    /// Nothing happens before open().
    explicit ExchangeLog(const QString& path);

    /// Opens the file behind what it holds already; one that is new may be read by its owner alone.
    /// False when it cannot be written; error() says why.
    bool open();
    QString error() const { return m_file.errorString(); }

    /// False once a line could not be written completely, such as on a full disk; error() says why.
    bool isWhole() const { return m_isWhole; }

    void noteRequest(const QString& address, const QString& request);
    /// `requestLine` is the first line of the request that is answered.
    void noteReply(const QString& address, const QString& requestLine, const QString& reply);

private:
    void write(const QString& address, const QString& requestLine, const HttpMessage& message,
               bool isReply);

    QFile m_file;
    Blackout m_blackout;
    bool m_isWhole = true;
};
