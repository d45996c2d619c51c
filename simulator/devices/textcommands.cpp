#include "textcommands.h"

#include <algorithm>
#include <array>

namespace {

// A device takes a moment to load a preset before it tells that it has.
constexpr int recallMs = 20;

struct Query
{
    Exchange exchange;
    const char* line;
};

constexpr std::array queries = {
    Query{Exchange::DeviceId, "devinfo deviceid"},
    Query{Exchange::DeviceName, "devinfo devicename"},
    Query{Exchange::FirmwareVersion, "devinfo version"},
    Query{Exchange::SerialNumber, "devinfo serialno"},
    Query{Exchange::CurrentPreset, "sscurrent_ex config"},
};

/// The number behind `prefix`; nothing when the line is another command or ends in no plain
/// decimal number.
std::optional<int> numberBehind(const QByteArray& line, const QByteArray& prefix)
{
    if (!line.startsWith(prefix)) {
        return std::nullopt;
    }
    bool ok = false;
    const int number = line.mid(prefix.size()).toInt(&ok);
    const bool isPlain = ok && prefix + QByteArray::number(number) == line && number >= 0;
    return isPlain ? std::optional(number) : std::nullopt;
}

std::optional<int> identifyNumber(const QByteArray& line)
{
    return numberBehind(line, "identify ");
}

QByteArray withoutQuotes(QByteArray answer)
{
    return answer.replace('"', "");
}

QList<QByteArray> split(const QByteArray& answer, const QList<int>& cuts)
{
    return cutAt(answer, cuts.isEmpty() ? QList{static_cast<int>(answer.size() / 2)} : cuts);
}

void apply(Delivery& delivery, QByteArray& answer, const Fault& fault)
{
    if (fault.kind == FaultKind::NoQuotes) {
        answer = withoutQuotes(answer);
    } else if (fault.kind == FaultKind::DoubledAnswer) {
        answer += answer;
    }
    delivery.pieces = fault.kind == FaultKind::SplitAnswer
                          ? separatePieces(split(answer, fault.cuts))
                          : QList<Delivery::Piece>{{answer}};
}

bool isMute(const Fault& fault)
{
    return fault.kind == FaultKind::NoAnswer;
}

} // namespace

TextCommands::TextCommands(const DeviceDescription& description)
    : m_description(description)
{
}

Exchange TextCommands::exchangeOf(const QByteArray& line)
{
    for (const Query& query : queries) {
        if (line == query.line) {
            return query.exchange;
        }
    }
    if (recallNumber(line)) {
        return Exchange::RecallCommand;
    }
    return identifyNumber(line) ? Exchange::IdentifyCommand : Exchange::UnknownCommand;
}

std::optional<int> TextCommands::recallNumber(const QByteArray& line)
{
    return numberBehind(line, "ssrecall_ex config ");
}

TextAnswer TextCommands::answer(const QByteArray& line)
{
    TextAnswer answer;
    answer.exchange = exchangeOf(line);
    answer.answer = answerTo(answer.exchange, line);
    if (answer.exchange == Exchange::RecallCommand) {
        answer.notification = "NOTIFY " + line + '\n';
    }
    return answer;
}

QByteArray TextCommands::value(Exchange exchange) const
{
    switch (exchange) {
    case Exchange::DeviceId:
        return m_description.deviceId.toUtf8();
    case Exchange::DeviceName:
        return m_description.label.toUtf8();
    case Exchange::FirmwareVersion:
        return m_description.version.toUtf8();
    default:
        return m_description.serial.toUtf8();
    }
}

QByteArray TextCommands::answerTo(Exchange exchange, const QByteArray& line)
{
    switch (exchange) {
    case Exchange::UnknownCommand:
        return errorAnswer(line);
    case Exchange::CurrentPreset:
        return "OK " + line + ' ' + QByteArray::number(m_currentPreset) + '\n';
    case Exchange::RecallCommand:
        m_currentPreset = recallNumber(line).value_or(0);
        return "OK " + line + '\n';
    case Exchange::IdentifyCommand:
        ++m_identifyCount;
        return "OK " + line + '\n';
    default:
        return "OK " + line + " \"" + value(exchange) + "\"\n";
    }
}

QByteArray errorAnswer(const QByteArray& line)
{
    return "ERROR " + line + '\n';
}

Delivery planAnswer(const TextAnswer& answer, const QList<Fault>& faults)
{
    if (std::any_of(faults.begin(), faults.end(), isMute)) {
        return {};
    }
    Delivery delivery;
    QByteArray text = answer.answer;
    delivery.pieces = {{text}};
    for (const Fault& fault : faults) {
        apply(delivery, text, fault);
    }
    if (!answer.notification.isEmpty()) {
        delivery.pieces.append({answer.notification, recallMs});
    }
    return delivery;
}
