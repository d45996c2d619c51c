#include "identifysteps.h"

#include "httpreply.h"
#include "httprequest.h"

BaseHttpSequence::BaseHttpSequence(const QString& address, QObject* parent)
    : QObject(parent)
    , m_address(address)
{
}

void GetStatus::buildRequest(QString& request)
{
    request = HttpRequest::getStatus(address());
}

int GetStatus::evaluateReply(const QString& reply)
{
    const bool initialized = HttpReply::jsonInt(reply, QStringLiteral("is-initialized")) != 0;
    return HttpReply::isOk(reply) && initialized ? Succeeded : Failed;
}

GetToken::GetToken(const QString& address, QString* token, QObject* parent)
    : BaseHttpSequence(address, parent)
    , m_token(token)
{
}

void GetToken::buildRequest(QString& request)
{
    request = HttpRequest::getToken(address());
}

int GetToken::evaluateReply(const QString& reply)
{
    if (!HttpReply::isOk(reply)) {
        return Failed;
    }
    *m_token = HttpReply::jsonText(reply, QStringLiteral("access-token"));
    return Succeeded;
}

PostAuthenticate::PostAuthenticate(const QString& address, const QString& password, QString* token,
                                   QObject* parent)
    : BaseHttpSequence(address, parent)
    , m_password(password)
    , m_token(token)
{
}

void PostAuthenticate::buildRequest(QString& request)
{
    request = HttpRequest::postAuthenticate(address(), *m_token, passwordDigest(m_password));
}

int PostAuthenticate::evaluateReply(const QString& reply)
{
    if (!HttpReply::isOk(reply)) {
        return Failed;
    }
    const QString token = HttpReply::jsonText(reply, QStringLiteral("access-token"));
    if (!token.isEmpty()) {
        *m_token = token;
    }
    return Succeeded;
}

GetIdentification::GetIdentification(const QString& address, const QString* token, QObject* parent)
    : BaseHttpSequence(address, parent)
    , m_token(token)
{
}

void GetIdentification::buildRequest(QString& request)
{
    request = HttpRequest::getIdentification(address(), *m_token);
}

int GetIdentification::evaluateReply(const QString& reply)
{
    return HttpReply::isOk(reply) ? Succeeded : Failed;
}

PostInvalidate::PostInvalidate(const QString& address, const QString* token, QObject* parent)
    : BaseHttpSequence(address, parent)
    , m_token(token)
{
}

void PostInvalidate::buildRequest(QString& request)
{
    request = HttpRequest::postInvalidate(address(), *m_token);
}

int PostInvalidate::evaluateReply(const QString& reply)
{
    return HttpReply::isOk(reply) ? Succeeded : Failed;
}
