#pragma once

#include "delivery.h"

#include <QObject>

class QTcpSocket;

/// Writes deliveries to a connection, one after the other, each piece after its pause and in a
/// packet of its own.
class PacedWriter : public QObject
{
    Q_OBJECT

public:
    /// The socket stays the caller's and must outlive the writer.
    explicit PacedWriter(QTcpSocket* socket, QObject* parent = nullptr);

    /// Puts a delivery behind those under way; pieces without a pause go out at once.
    void send(const Delivery& delivery);

    /// True when everything has been written.
    bool isIdle() const { return m_pieces.isEmpty(); }
    /// True once the last delivery asked for the connection's end.
    bool isClosing() const { return m_isClosing; }

Q_SIGNALS:
    /// Everything has been written and the connection stays open. Emitted after pauses only, not
    /// from within send().
    void becameIdle();

private Q_SLOTS:
    void writeNext();

private:
    void pump();
    void writePiece();
    void finish();

    QTcpSocket* m_socket;
    QList<Delivery::Piece> m_pieces;
    bool m_isClosing = false;
    bool m_isWaiting = false;
};
