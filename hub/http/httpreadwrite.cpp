#include "httpreadwrite.h"

#include "httpconnection.h"
#include "ihttpsequence.h"

namespace {

constexpr int maxRetries = 20;
constexpr std::chrono::milliseconds retryPause(500);

} // namespace

HttpReadWrite::HttpReadWrite(const QString& address, const QString& password, QObject* parent)
    : QObject(parent)
    , m_password(password)
    , m_connection(new HttpConnection(address, this))
{
    connect(m_connection, SIGNAL(replied(QString)), this, SLOT(evaluate(QString)));
}

void HttpReadWrite::start()
{
    if (m_isRunning) {
        m_connection->drop();
    }
    m_retries = 0;
    m_stepIndex = 0;
    if (m_steps.isEmpty()) {
        m_connection->open();
        return;
    }
    m_isRunning = true;
    m_connection->ask(currentRequest());
}

void HttpReadWrite::completed(bool /*success*/) {}

void HttpReadWrite::appendStep(IHttpSequence* step)
{
    m_steps.append(step);
}

const QString& HttpReadWrite::address() const
{
    return m_connection->address();
}

void HttpReadWrite::evaluate(const QString& reply)
{
    switch (m_steps.at(m_stepIndex)->evaluateReply(reply)) {
    case IHttpSequence::Succeeded:
        advance();
        break;
    case IHttpSequence::TryAgain:
        tryAgain();
        break;
    default:
        end(false);
    }
}

QString HttpReadWrite::currentRequest() const
{
    QString request;
    m_steps.at(m_stepIndex)->buildRequest(request);
    return request;
}

void HttpReadWrite::advance()
{
    ++m_stepIndex;
    if (m_stepIndex < m_steps.size()) {
        m_connection->ask(currentRequest());
    } else {
        end(true);
    }
}

void HttpReadWrite::tryAgain()
{
    ++m_retries;
    if (m_retries > maxRetries) {
        end(false);
    } else {
        m_connection->askAfter(retryPause, currentRequest());
    }
}

void HttpReadWrite::end(bool success)
{
    m_isRunning = false;
    completed(success);
}
