#include "basehttpsequence.h"

BaseHttpSequence::BaseHttpSequence(const QString& address, QObject* parent)
    : QObject(parent)
    , m_address(address)
{
}
