#include "getstatus.h"

#include "httpreply.h"
#include "httprequest.h"

void GetStatus::buildRequest(QString& request)
{
    request = HttpRequest::getStatus(address());
}

int GetStatus::evaluateReply(const QString& reply)
{
    const bool initialized = HttpReply::jsonInt(reply, QStringLiteral("is-initialized")) != 0;
    return HttpReply::isOk(reply) && initialized ? Succeeded : Failed;
}
