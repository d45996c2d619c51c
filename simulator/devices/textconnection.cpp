#include "textconnection.h"

#include <QTcpSocket>
#include <utility>

namespace {

// A peer that never ends its line must not fill the memory.
constexpr qsizetype maxLineLength = 0x10000;

} // namespace

TextConnection::TextConnection(QTcpSocket* socket, Answerer answerer, const Faults& faults,
                               QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_answerer(std::move(answerer))
    , m_faults(faults)
    , m_writer(socket)
{
    m_socket->setParent(this);
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(readMore()));
    connect(m_socket, SIGNAL(disconnected()), this, SLOT(finish()));
    if (m_faults.greeting) {
        m_writer.send({{{m_faults.greeting->bytes}}});
    }
}

void TextConnection::abort()
{
    m_isOver = true;
    m_socket->abort();
    deleteLater();
}

void TextConnection::readMore()
{
    m_buffer += m_socket->readAll();
    for (qsizetype end = m_buffer.indexOf('\n'); end >= 0; end = m_buffer.indexOf('\n')) {
        const QByteArray line = m_buffer.first(end);
        m_buffer.remove(0, end + 1);
        answerLine(line);
    }
    if (m_buffer.size() > maxLineLength) {
        Q_EMIT lineBroken(QStringLiteral("line longer than %1 bytes").arg(maxLineLength));
        abort();
    }
}

void TextConnection::finish()
{
    if (!m_isOver && !m_buffer.isEmpty()) {
        Q_EMIT lineBroken(QStringLiteral("connection ended inside a line: %1 bytes of an "
                                         "unfinished line")
                              .arg(m_buffer.size()));
    }
    deleteLater();
}

void TextConnection::answerLine(const QByteArray& line)
{
    if (m_faults.stopAfter && m_answers >= m_faults.stopAfter->number) {
        return;
    }
    Delivery delivery = m_answerer(line);
    if (m_answers == 0 && m_faults.greetingWithAnswer && !delivery.pieces.isEmpty()) {
        delivery.pieces.front().bytes.prepend(m_faults.greetingWithAnswer->bytes);
    }
    ++m_answers;
    m_writer.send(delivery);
}
