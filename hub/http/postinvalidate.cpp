#include "postinvalidate.h"

#include "httpreply.h"
#include "httprequest.h"

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
