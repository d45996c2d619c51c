#include "recordingrelay.h"

#include <QRegularExpression>

namespace {

constexpr quint16 hubPort = 80;

} // namespace

RecordingRelay::RecordingRelay(const QString& address, const QString& hub)
    : m_hub(hub)
{
    connect(&m_server, SIGNAL(newConnection()), this, SLOT(takeConnection()));
    connect(&m_toHub, SIGNAL(readyRead()), this, SLOT(passBack()));
    m_server.listen(QHostAddress(address), hubPort);
}

QList<QByteArray> RecordingRelay::requests() const
{
    static const QRegularExpression start(QStringLiteral("(GET|POST|PUT|DELETE) http://"));
    const QString text = QString::fromLatin1(m_sent);
    QList<QByteArray> requests;
    auto match = start.globalMatch(text);
    while (match.hasNext()) {
        const qsizetype from = match.next().capturedStart();
        const qsizetype to = match.hasNext() ? match.peekNext().capturedStart() : text.size();
        requests.append(m_sent.sliced(from, to - from));
    }
    return requests;
}

void RecordingRelay::takeConnection()
{
    m_fromWizard = m_server.nextPendingConnection();
    connect(m_fromWizard, SIGNAL(readyRead()), this, SLOT(passOn()));
    connect(m_fromWizard, SIGNAL(disconnected()), this, SLOT(hangUp()));
    m_toHub.abort();
    m_toHub.connectToHost(m_hub, hubPort);
}

void RecordingRelay::passOn()
{
    const QByteArray bytes = m_fromWizard->readAll();
    m_sent += bytes;
    m_toHub.write(bytes);
}

void RecordingRelay::passBack()
{
    if (m_fromWizard) {
        m_fromWizard->write(m_toHub.readAll());
    }
}

void RecordingRelay::hangUp()
{
    m_toHub.abort();
}
