#include "scriptedreply.h"

#include <QStringList>

namespace {

QByteArray withLength(const QByteArray& text)
{
    return char(text.size()) + text;
}

} // namespace

QByteArray ScriptedReply::bytes() const
{
    QByteArray rest;
    rest += flags;
    rest += family;
    rest += address.leftJustified(16, '\0', true);
    rest += mac;
    rest += withLength(service);
    rest += bodyIndicator;
    if (bodyIndicator.count('\0') != bodyIndicator.size()) {
        rest += withLength(name) + withLength(model) + withLength(trailing);
    }
    const auto length = int(rest.size()) + lengthError;
    return magic + char(length / 256) + char(length % 256) + rest;
}

ScriptedReply ScriptedReply::from(const QString& address, const QByteArray& model, char lastMacByte)
{
    ScriptedReply reply;
    for (const QString& number : address.split(u'.')) {
        reply.address += char(number.toInt());
    }
    reply.model = model;
    reply.mac[5] = lastMacByte;
    return reply;
}
