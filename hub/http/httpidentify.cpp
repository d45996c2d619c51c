#include "httpidentify.h"

#include "getidentification.h"
#include "getstatus.h"
#include "gettoken.h"
#include "identifysteps.h"
#include "postinvalidate.h"

HttpIdentify::HttpIdentify(const QString& address, const QString& password, QObject* parent)
    : HttpReadWrite(address, password, parent)
{
    appendStep(new GetStatus(address, this));
    appendStep(new GetToken(address, &m_token, this));
    appendStep(new PostAuthenticate(address, password, &m_token, this));
    appendStep(new GetIdentification(address, &m_token, this));
    appendStep(new PostInvalidate(address, &m_token, this));
}
