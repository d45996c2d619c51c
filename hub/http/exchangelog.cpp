#include "exchangelog.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

ExchangeLog::ExchangeLog(const QString& path)
    : m_file(path)
{
}

bool ExchangeLog::open()
{
    const bool isNew = !m_file.exists();
    const bool isOpen = m_file.open(QIODevice::WriteOnly | QIODevice::Append);
    if (isOpen && isNew) {
        m_file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    }
    return isOpen;
}

void ExchangeLog::noteRequest(const QString& address, const QString& request)
{
    const HttpMessage message = m_blackout.request(request);
    write(address, message.firstLine, message, false);
}

void ExchangeLog::noteReply(const QString& address, const QString& requestLine,
                            const QString& reply)
{
    write(address, requestLine, m_blackout.reply(requestLine, reply), true);
}

/// Every line reaches the system at once: a log is read when something has gone wrong.
void ExchangeLog::write(const QString& address, const QString& requestLine,
                        const HttpMessage& message, bool isReply)
{
    QJsonObject line{
        {QStringLiteral("time"), QDateTime::currentDateTime().toString(Qt::ISODateWithMs)},
        {QStringLiteral("hub"), address},
        {QStringLiteral("kind"), isReply ? QStringLiteral("reply") : QStringLiteral("request")},
        {QStringLiteral("of"), m_blackout.withoutKnown(requestLine)},
        {QStringLiteral("headers"), QJsonArray::fromStringList(message.headers)},
        {QStringLiteral("body"), message.body}};
    if (isReply) {
        line.insert(QStringLiteral("line"), message.firstLine);
    }
    const QByteArray bytes = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    m_isWhole = m_file.write(bytes) == bytes.size() && m_file.flush() && m_isWhole;
}
