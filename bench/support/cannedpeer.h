#pragma once

#include <QStringList>

/// A peer that answers everything at once and thinks about nothing: a process of its own that
/// listens on addresses of this machine and sends one fixed reply per message.
///
/// A message ends with a line feed on the text-command port; on the port of the web API with the
/// body that its Content-Length announces.
class CannedPeer
{
public:
    /// Opens the ports and starts the process. Fork and event loop do not mix: call this before
    /// the application object is made.
    CannedPeer(const QStringList& textAddresses, const QStringList& webAddresses);
    CannedPeer(const CannedPeer&) = delete;
    CannedPeer& operator=(const CannedPeer&) = delete;
    CannedPeer(CannedPeer&&) = delete;
    CannedPeer& operator=(CannedPeer&&) = delete;
    /// Ends the process.
    ~CannedPeer();

    /// False when a port could not be opened.
    bool isOpen() const { return m_pid > 0; }
    int processId() const { return m_pid; }

    /// How much has been sent to it so far, over all connections.
    qint64 bytesReceived() const { return *m_bytesReceived; }

    /// What every web request is answered with, and every text command.
    static QByteArray webReply();
    static QByteArray textReply();

    /// The access token in its web replies.
    static QString token();

private:
    qint64* m_bytesReceived; ///< shared with the process
    int m_pid = -1;
};
