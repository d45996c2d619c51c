#include "getidentification.h"

#include "httpreply.h"
#include "httprequest.h"

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
