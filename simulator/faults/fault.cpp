#include "fault.h"

#include <array>

namespace {

struct KindRow
{
    FaultKind kind;
    const char* name;
    Channel channel;
    FaultValue value;
};

constexpr std::array rows = {
    KindRow{FaultKind::Status, "status", Channel::Http, FaultValue::Number},
    KindRow{FaultKind::Silence, "silence", Channel::Http, FaultValue::None},
    KindRow{FaultKind::CloseBeforeReply, "close", Channel::Http, FaultValue::None},
    KindRow{FaultKind::CloseInBody, "close-in-body", Channel::Http, FaultValue::None},
    KindRow{FaultKind::Pieces, "pieces", Channel::Http, FaultValue::Cuts},
    KindRow{FaultKind::Slow, "slow", Channel::Http, FaultValue::Number},
    KindRow{FaultKind::NoLength, "no-length", Channel::Http, FaultValue::None},
    KindRow{FaultKind::Length, "length", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::LengthBefore, "length-before", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::LengthAfter, "length-after", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::ConnectionHeader, "connection", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::Garbage, "garbage", Channel::Http, FaultValue::None},
    KindRow{FaultKind::Body, "body", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::InsertedText, "inserted-text", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::RawReply, "raw-reply", Channel::Http, FaultValue::Bytes},
    KindRow{FaultKind::Reboot, "reboot", Channel::Http, FaultValue::Number},
    KindRow{FaultKind::RefuseHttp, "refuse", Channel::Http, FaultValue::None},
    KindRow{FaultKind::Greeting, "greeting", Channel::Text, FaultValue::Bytes},
    KindRow{FaultKind::GreetingWithAnswer, "greeting-with-answer", Channel::Text,
            FaultValue::Bytes},
    KindRow{FaultKind::SplitAnswer, "split-answer", Channel::Text, FaultValue::Cuts},
    KindRow{FaultKind::DoubledAnswer, "doubled-answer", Channel::Text, FaultValue::None},
    KindRow{FaultKind::ErrorAnswer, "error-answer", Channel::Text, FaultValue::None},
    KindRow{FaultKind::NoAnswer, "no-answer", Channel::Text, FaultValue::None},
    KindRow{FaultKind::NoEffect, "no-effect", Channel::Text, FaultValue::None},
    KindRow{FaultKind::NoQuotes, "no-quotes", Channel::Text, FaultValue::None},
    KindRow{FaultKind::RefuseText, "refuse-commands", Channel::Text, FaultValue::None},
    KindRow{FaultKind::StopAfter, "stop-after", Channel::Text, FaultValue::Number},
    KindRow{FaultKind::WrongMagic, "wrong-magic", Channel::Discovery, FaultValue::None},
    KindRow{FaultKind::WrongLength, "wrong-length", Channel::Discovery, FaultValue::None},
    KindRow{FaultKind::NoReplyFlag, "no-reply-flag", Channel::Discovery, FaultValue::None},
    KindRow{FaultKind::Truncated, "truncated", Channel::Discovery, FaultValue::Number},
    KindRow{FaultKind::NoReply, "no-reply", Channel::Discovery, FaultValue::None},
    KindRow{FaultKind::DirectOnly, "direct-only", Channel::Discovery, FaultValue::None},
    KindRow{FaultKind::DuplicateReply, "duplicate-reply", Channel::Discovery, FaultValue::None},
    KindRow{FaultKind::RawDatagram, "raw-datagram", Channel::Discovery, FaultValue::Bytes},
};

const KindRow& rowOf(FaultKind kind)
{
    for (const KindRow& row : rows) {
        if (row.kind == kind) {
            return row;
        }
    }
    return rows.front();
}

} // namespace

Channel channelOf(FaultKind kind)
{
    return rowOf(kind).channel;
}

QList<FaultKind> faultKinds(Channel channel)
{
    QList<FaultKind> found;
    for (const KindRow& row : rows) {
        if (row.channel == channel) {
            found.append(row.kind);
        }
    }
    return found;
}

FaultValue valueOf(FaultKind kind)
{
    return rowOf(kind).value;
}

bool isPerConnection(FaultKind kind)
{
    return isRefusal(kind) || kind == FaultKind::Greeting ||
           kind == FaultKind::GreetingWithAnswer || kind == FaultKind::StopAfter;
}

bool isRefusal(FaultKind kind)
{
    return kind == FaultKind::RefuseHttp || kind == FaultKind::RefuseText;
}

QString faultKindName(FaultKind kind)
{
    return QLatin1String(rowOf(kind).name);
}

std::optional<FaultKind> faultKindNamed(QStringView name)
{
    for (const KindRow& row : rows) {
        if (name == QLatin1String(row.name)) {
            return row.kind;
        }
    }
    return std::nullopt;
}

QList<QByteArray> cutAt(const QByteArray& bytes, const QList<int>& offsets)
{
    QList<QByteArray> pieces;
    qsizetype start = 0;
    for (const int offset : offsets) {
        if (offset > start && offset < bytes.size()) {
            pieces.append(bytes.mid(start, offset - start));
            start = offset;
        }
    }
    pieces.append(bytes.mid(start));
    return pieces;
}
