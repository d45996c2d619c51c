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
QList<Delivery::Piece> separatePieces(const QList<QByteArray>& parts);
