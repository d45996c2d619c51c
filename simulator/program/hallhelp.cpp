#include "hallhelp.h"

#include "fault.h"

#include <QStringList>

namespace {

constexpr qsizetype maxLineWidth = 79;

/// The words on lines of their own, indented.
QString wrapped(const QStringList& words)
{
    QString text;
    QString line = QStringLiteral(" ");
    for (const QString& word : words) {
        if (line.size() + 1 + word.size() > maxLineWidth) {
            text += line + QLatin1Char('\n');
            line = QStringLiteral(" ");
        }
        line += QLatin1Char(' ') + word;
    }
    return text + line + QLatin1Char('\n');
}

QString withValue(FaultKind kind)
{
    switch (valueOf(kind)) {
    case FaultValue::Number:
        return faultKindName(kind) + QStringLiteral(",NUMBER");
    case FaultValue::Bytes:
        return faultKindName(kind) + QStringLiteral(",TEXT");
    case FaultValue::Cuts:
        return faultKindName(kind) + QStringLiteral("[,OFFSETS]");
    case FaultValue::None:
        break;
    }
    return faultKindName(kind);
}

QString channelHelp(const QString& title, Channel channel)
{
    QStringList kinds;
    for (const FaultKind kind : faultKinds(channel)) {
        kinds.append(withValue(kind));
    }
    return QStringLiteral("\n%1:\n%2Kinds of fault there:\n%3")
        .arg(title, wrapped(exchangeNames(channel)), wrapped(kinds));
}

} // namespace

QString faultHelp()
{
    return QStringLiteral("\n"
                          "Faults: DEVICE,EXCHANGE,KIND[*TIMES][,VALUE]\n"
                          "  --fault 127.0.1.2,recall,status*1,503\n"
                          "  DEVICE    an address, or * for every device\n"
                          "  EXCHANGE  one of those below, or * for every one of the kind's group\n"
                          "  TIMES     how often the fault strikes; without it for ever\n"
                          "  NUMBER    a status, milliseconds, a count or bytes, by the kind\n"
                          "  TEXT      in it \\r, \\n, \\\\ and \\xNN stand for single bytes\n"
                          "  OFFSETS   bytes before which to cut, such as 3;17\n") +
           channelHelp(QStringLiteral("Requests to hubs (the first 11 also by number, 0 to %1)")
                           .arg(lastInstallationStep),
                       Channel::Http) +
           channelHelp(QStringLiteral("Text commands"), Channel::Text) +
           channelHelp(QStringLiteral("Discovery"), Channel::Discovery);
}

QString exitCodeHelp()
{
    return QStringLiteral("\n"
                          "Exit codes:\n"
                          "  0  closed, and every message was as prescribed\n"
                          "  1  the options or the description make no hall\n"
                          "  2  an address, a port or the store cannot be used\n"
                          "  3  closed, but some messages were not as prescribed\n");
}
