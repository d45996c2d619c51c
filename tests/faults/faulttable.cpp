#include "faulttable.h"

#include "replyplan.h"

namespace {

constexpr int secondByteOfFirstLineEnd = 16;
constexpr int rebootMs = 1;

/// Any four neighbouring bytes are cut apart somewhere: so is the character of four bytes.
QList<int> everyThirdByte()
{
    QList<int> cuts;
    for (int offset = 3; offset < 300; offset += 3) {
        cuts.append(offset);
    }
    return cuts;
}

QList<ReplyFault> brokenDeliveries()
{
    const Fault musicalSign{.kind = FaultKind::ConnectionHeader, .bytes = "\xF0\x9D\x84\x9E"};
    return {
        {"silence", {{.kind = FaultKind::Silence}}, Hearing::Lost},
        {"closed before the reply", {{.kind = FaultKind::CloseBeforeReply}}, Hearing::Lost},
        {"closed in mid-body", {{.kind = FaultKind::CloseInBody}}, Hearing::Lost},
        {"a reboot", {{.kind = FaultKind::Reboot, .number = rebootMs}}, Hearing::Lost},
        {"single bytes", {{.kind = FaultKind::Pieces}}, Hearing::Good},
        {"a cut inside a line end",
         {{.kind = FaultKind::Pieces, .cuts = {secondByteOfFirstLineEnd}}},
         Hearing::Good},
        {"a cut inside a character",
         {musicalSign, {.kind = FaultKind::Pieces, .cuts = everyThirdByte()}},
         Hearing::Good},
    };
}

ReplyFault connection(const char* name, const char* value)
{
    return {name, {{.kind = FaultKind::ConnectionHeader, .bytes = value}}, Hearing::Good};
}

ReplyFault length(const char* name, FaultKind kind, const char* value, Hearing hearing)
{
    return {name, {{.kind = kind, .bytes = value}}, hearing};
}

QList<ReplyFault> oddHeaders()
{
    return {
        {"status 500", {{.kind = FaultKind::Status, .number = 500}}, Hearing::Refusal},
        {"status 201", {{.kind = FaultKind::Status, .number = 201}}, Hearing::Refusal},
        connection("Connection: close", "close"),
        connection("Connection: close between odd blanks", "  \tclose "),
        connection("Connection: Close", "Close"),
        {"no length", {{.kind = FaultKind::NoLength}}, Hearing::Lost},
        length("length 0", FaultKind::Length, "0", Hearing::Lost),
        length("a length that is no number", FaultKind::Length, "many", Hearing::Lost),
        length("a wrong length before the right one", FaultKind::LengthBefore, "5", Hearing::Good),
        length("length 0 after the right one", FaultKind::LengthAfter, "0", Hearing::Lost),
        // A reply that is long enough is taken with all that has come behind its header. The hall
        // sends header and body at once, as hubs do; cut apart, what comes later is lost.
        length("a negative length", FaultKind::Length, "-1", Hearing::Good),
        length("too short a length", FaultKind::Length, "5", Hearing::Good),
        length("a huge length", FaultKind::Length, "2000000000", Hearing::Lost),
        length("a length beyond every number", FaultKind::Length, "99999999999999999999",
               Hearing::Lost),
    };
}

QList<ReplyFault> oddBodies()
{
    const QByteArray wrongTypes =
        R"({"is-initialized": "1", "access-token": 7, "request": true, "status": ["invalid"]})";
    return {
        {"wrong JSON", {{.kind = FaultKind::Garbage}}, Hearing::Useless},
        {"JSON of wrong types", {{.kind = FaultKind::Body, .bytes = wrongTypes}}, Hearing::Useless},
        {"an empty line in the body",
         {{.kind = FaultKind::InsertedText, .bytes = "\r\n\r\n"}},
         Hearing::Lost},
        // The length is counted in characters, of which there are fewer than bytes.
        {"non-ASCII text in the body",
         {{.kind = FaultKind::InsertedText, .bytes = "\"saal\":\"Gr\xC3\xBCn\","}},
         Hearing::Lost},
    };
}

/// What a hub holds once this request is carried out.
QString heldAfter(Exchange exchange)
{
    switch (exchange) {
    case Exchange::PresetEntry:
        return QStringLiteral("1: no file");
    case Exchange::HubFile:
        return QStringLiteral("1: hub");
    case Exchange::DeviceFile:
        return QStringLiteral("1: hub device");
    case Exchange::Recall:
    case Exchange::Invalidate:
        return QStringLiteral("1: hub device, 2: hub device, recalled 1");
    default:
        return QStringLiteral("nothing");
    }
}

QString heldBefore(Exchange exchange)
{
    if (exchange == Exchange::Recall) {
        return QStringLiteral("1: hub device, 2: hub device");
    }
    return exchange == Exchange::Status ? heldAfter(exchange)
                                        : heldAfter(static_cast<Exchange>(int(exchange) - 1));
}

/// Only these replies are read beyond their header.
bool hasMeaningfulBody(Exchange exchange)
{
    return exchange <= Exchange::LogIn || exchange >= Exchange::Recall;
}

bool asksForPasswordsAgain(Exchange exchange, Hearing hearing)
{
    // A hub that does not say whether it has a password is offered a first one, which it does not
    // take; and a log-in without a token is none.
    return hearing == Hearing::Useless
               ? exchange <= Exchange::SetPassword
               : hearing == Hearing::Refusal &&
                     (exchange == Exchange::SetPassword || exchange == Exchange::LogIn);
}

int expectedPrompts(Exchange exchange, Hearing hearing)
{
    if (asksForPasswordsAgain(exchange, hearing)) {
        return maxAnswers + 1;
    }
    if (hearing == Hearing::Good) {
        return exchange == Exchange::SetPassword ? 2 : 1;
    }
    return exchange < Exchange::SetPassword ? 0 : 1;
}

} // namespace

const QList<ReplyFault>& replyFaults()
{
    static const QList<ReplyFault> list = oddHeaders() + brokenDeliveries() + oddBodies();
    return list;
}

FaultOutcome expectedOutcome(Exchange exchange, const ReplyFault& fault)
{
    const bool isUnread = fault.hearing == Hearing::Useless && !hasMeaningfulBody(exchange);
    const Hearing hearing = isUnread ? Hearing::Good : fault.hearing;
    const int prompts = expectedPrompts(exchange, hearing);
    if (hearing == Hearing::Good) {
        return {QStringLiteral("Done"), 1, prompts, heldAfter(Exchange::Invalidate)};
    }
    if (hearing == Hearing::Useless && exchange == Exchange::Recall) {
        // The failure of the recall is told, but the end that counts comes with the last reply.
        return {QStringLiteral("Done"), 2, prompts, heldAfter(Exchange::Invalidate)};
    }
    const bool isCarriedOut = !preventsAction(fault.faults);
    return {QStringLiteral("Error"), 1, prompts,
            isCarriedOut ? heldAfter(exchange) : heldBefore(exchange)};
}
