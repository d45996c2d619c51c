#include "pacedwriter.h"

#include <QTcpSocket>
#include <QTimer>

PacedWriter::PacedWriter(QTcpSocket* socket, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
{
    // Pieces must leave as they are written, not gathered into one packet.
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

void PacedWriter::send(const Delivery& delivery)
{
    m_pieces.append(delivery.pieces);
    m_isClosing = m_isClosing || delivery.closeAfter;
    pump();
}

void PacedWriter::writeNext()
{
    m_isWaiting = false;
    if (!m_pieces.isEmpty()) {
        writePiece();
    }
    pump();
    if (isIdle() && !m_isClosing) {
        Q_EMIT becameIdle();
    }
}

void PacedWriter::pump()
{
    while (!m_isWaiting && !m_pieces.isEmpty() && m_pieces.front().waitMs <= 0) {
        writePiece();
    }
    if (m_pieces.isEmpty()) {
        finish();
    } else if (!m_isWaiting) {
        m_isWaiting = true;
        QTimer::singleShot(m_pieces.front().waitMs, Qt::PreciseTimer, this, SLOT(writeNext()));
    }
}

void PacedWriter::writePiece()
{
    m_socket->write(m_pieces.takeFirst().bytes);
    m_socket->flush();
}

void PacedWriter::finish()
{
    if (m_isClosing) {
        m_socket->disconnectFromHost();
    }
}
