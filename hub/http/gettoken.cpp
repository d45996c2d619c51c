#include "gettoken.h"

#include "httpreply.h"
#include "httprequest.h"

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
