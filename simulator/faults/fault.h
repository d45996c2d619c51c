#pragma once

#include "exchange.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringView>
#include <optional>

/// The ways in which a device of the hall can misbehave. What each one needs in `number`, `bytes`
/// or `cuts` of its Fault stands beside it.
enum class FaultKind
{
    Status,             ///< another status code (`number`); from 300 on nothing is carried out
    Silence,            ///< no reply, the connection stays; nothing is carried out
    CloseBeforeReply,   ///< the connection ends instead of a reply; nothing is carried out
    CloseInBody,        ///< the connection ends after half of the body
    Pieces,             ///< the reply is cut before each offset in `cuts`; no cuts: every byte
    Slow,               ///< the reply waits for `number` ms
    NoLength,           ///< the reply has no Content-Length line
    Length,             ///< the Content-Length line holds `bytes`, whatever they are
    LengthBefore,       ///< one more Content-Length line with `bytes` before the right one
    LengthAfter,        ///< one more Content-Length line with `bytes` after the right one
    ConnectionHeader,   ///< the Connection line holds `bytes`; the hub closes on exactly "close"
    Garbage,            ///< the body is no JSON, with its right length
    Body,               ///< the body is `bytes`, with its right length
    InsertedText,       ///< `bytes` stand behind the body's first character, with the right length
    RawReply,           ///< the whole reply is `bytes`
    Reboot,             ///< connections and tokens are dropped, the hub is deaf for `number` ms
    RefuseHttp,         ///< connections to the HTTP port are refused
    Greeting,           ///< `bytes` are sent as soon as a connection is made
    GreetingWithAnswer, ///< `bytes` come in one packet with the first answer
    SplitAnswer,        ///< the answer is cut before each offset in `cuts`; no cuts: in the middle
    DoubledAnswer,      ///< the answer comes twice in one packet
    ErrorAnswer,        ///< the answer begins with ERROR; nothing is carried out
    NoAnswer,           ///< no answer, the connection stays; nothing is carried out
    NoEffect,           ///< the answer is as ever, but nothing is carried out
    NoQuotes,           ///< the answer lacks its double quotes
    RefuseText,         ///< connections to the text-command port are refused
    StopAfter,          ///< no answers after the first `number` on a connection
    WrongMagic,         ///< the discovery reply begins with another magic
    WrongLength,        ///< its length field is one too high
    NoReplyFlag,        ///< its reply flag is clear
    Truncated,          ///< only its first `number` bytes are sent
    NoReply,            ///< no discovery reply
    DirectOnly,         ///< no reply to a query to all; one to the device alone is answered
    DuplicateReply,     ///< two datagrams instead of one
    RawDatagram         ///< the reply is `bytes`
};

/// What a kind of fault takes as its value.
enum class FaultValue
{
    None,
    Number,
    Bytes,
    Cuts
};

/// One misbehaviour of a device. Faults are plain data: a table of tests or a description file can
/// list them. Several faults of one exchange add up, in the order in which they were given.
struct Fault
{
    /// The device's address; empty: every device of the hall. Ignored by a device itself.
    QString address = {};
    /// The exchange that goes wrong; nothing: every exchange on the channel of the kind.
    std::optional<Exchange> exchange = {};
    FaultKind kind = FaultKind::Silence;
    /// Status code, milliseconds or count, by the kind.
    int number = 0;
    /// Text or bytes, by the kind.
    QByteArray bytes = {};
    /// Offsets into what is sent, ascending.
    QList<int> cuts = {};
    /// How often the fault strikes; negative: for ever. A refusal lasts in any case, from the
    /// start.
    int times = -1;
    /// How many exchanges it lets pass before it strikes for the first time.
    int skip = 0;
};

/// The channel on which a kind of fault can strike.
Channel channelOf(FaultKind kind);

/// All kinds that can strike on that channel.
QList<FaultKind> faultKinds(Channel channel);

/// What value a kind of fault takes.
FaultValue valueOf(FaultKind kind);

/// True for kinds that strike a connection as such and not the answer to one message.
bool isPerConnection(FaultKind kind);

/// True for those of them that last until they are taken back instead of striking now and then.
bool isRefusal(FaultKind kind);

/// The name of a kind in descriptions and on the command line.
QString faultKindName(FaultKind kind);

/// The kind of that name; nothing when there is none.
std::optional<FaultKind> faultKindNamed(QStringView name);

/// The pieces of `bytes`, cut before each offset; offsets outside are passed over. Without
/// offsets the whole.
QList<QByteArray> cutAt(const QByteArray& bytes, const QList<int>& offsets);
