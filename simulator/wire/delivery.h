#pragma once

#include <QByteArray>
#include <QList>

/// How an answer goes onto a connection: what is written, in which pieces, and what follows.
struct Delivery
{
    struct Piece
    {
        QByteArray bytes;
        /// Pause before the piece, in ms; 0 writes it at once.
        int waitMs = 0;
    };

    QList<Piece> pieces = {};
    /// Ends the connection once everything is written.
    bool closeAfter = false;
};

/// Pieces of one answer, each in a packet of its own.
inline QList<Delivery::Piece> separatePieces(const QList<QByteArray>& parts)
{
    // Long enough for the peer's event loop to see each piece on its own.
    constexpr int gapMs = 1;
    QList<Delivery::Piece> pieces;
    for (const QByteArray& part : parts) {
        pieces.append({part, pieces.isEmpty() ? 0 : gapMs});
    }
    return pieces;
}
