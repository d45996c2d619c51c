#include "delivery.h"

namespace {

// Long enough for the peer's event loop to see each piece on its own.
constexpr int gapMs = 1;

} // namespace

QList<Delivery::Piece> separatePieces(const QList<QByteArray>& parts)
{
    QList<Delivery::Piece> pieces;
    for (const QByteArray& part : parts) {
        pieces.append({part, pieces.isEmpty() ? 0 : gapMs});
    }
    return pieces;
}
