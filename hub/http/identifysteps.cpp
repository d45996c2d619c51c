#include "identifysteps.h"

#include "httpreply.h"
#include "httprequest.h"

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
