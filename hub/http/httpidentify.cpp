#include "httpidentify.h"

#include "identifysteps.h"

HttpIdentify::HttpIdentify(const QString& address, const QString& password, QObject* parent)
    : HttpReadWrite(address, password, parent)
{
    appendStep(new GetStatus(address, this));
    appendStep(new GetToken(address, &m_token, this));
    appendStep(new PostAuthenticate(address, password, &m_token, this));
    appendStep(new GetIdentification(address, &m_token, this));
    appendStep(new PostInvalidate(address, &m_token, this));
}
