#include "bareidentity.h"

#include "scpcommandsender.h"

namespace {

const QStringList& questions()
{
    static const QStringList lines{
        QStringLiteral("devinfo deviceid\n"),   QStringLiteral("devinfo deviceid\n"),
        QStringLiteral("devinfo devicename\n"), QStringLiteral("devinfo version\n"),
        QStringLiteral("devinfo serialno\n"),   QStringLiteral("sscurrent_ex config\n")};
    return lines;
}

} // namespace

BareIdentity::BareIdentity(const QString& address)
{
    connect(&m_socket, SIGNAL(connected()), this, SLOT(ask()));
    connect(&m_socket, SIGNAL(readyRead()), this, SLOT(answered()));
    m_socket.connectToHost(address, SCPCommandSender::port);
}

void BareIdentity::ask()
{
    m_socket.write(questions().at(m_answers.size()).toUtf8());
}

void BareIdentity::answered()
{
    m_answers.append(QString::fromUtf8(m_socket.readAll()));
    if (m_answers.size() < questions().size()) {
        ask();
    } else {
        readValues();
        Q_EMIT finished();
    }
}

// The first answer is not used; the last holds words, the others a quoted text.
void BareIdentity::readValues()
{
    for (qsizetype index = 1; index < m_answers.size() - 1; ++index) {
        m_values.append(m_answers.at(index).section(u'"', 1, 1));
    }
    m_values.append(m_answers.last().split(u' ').value(3));
}
