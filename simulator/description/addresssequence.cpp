#include "addresssequence.h"

#include <QHostAddress>

namespace {

bool isHostPart(quint32 address)
{
    const quint32 last = address & 0xFF;
    return last != 0 && last != 0xFF;
}

} // namespace

AddressSequence::AddressSequence(const QString& first)
{
    m_next = QHostAddress(first).toIPv4Address(&m_isValid);
}

QString AddressSequence::next()
{
    if (!m_isValid) {
        return {};
    }
    while (!isHostPart(m_next)) {
        ++m_next;
    }
    return QHostAddress(m_next++).toString();
}
