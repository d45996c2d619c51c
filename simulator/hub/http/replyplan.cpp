#include "replyplan.h"

#include <algorithm>

namespace {

constexpr int firstRefusingStatus = 300;

bool prevents(const Fault& fault)
{
    switch (fault.kind) {
    case FaultKind::Silence:
    case FaultKind::CloseBeforeReply:
    case FaultKind::Reboot:
        return true;
    case FaultKind::Status:
        return fault.number >= firstRefusingStatus;
    default:
        return false;
    }
}

void addLength(HubReply& reply, const QByteArray& value, qsizetype offset)
{
    const qsizetype index = reply.indexOf("Content-Length");
    reply.headers.insert(index < 0 ? 0 : index + offset, {"Content-Length", value});
}

void applyToHeaders(HubReply& reply, const Fault& fault)
{
    switch (fault.kind) {
    case FaultKind::Status:
        reply.status = fault.number;
        break;
    case FaultKind::NoLength:
        reply.headers.removeIf(
            [](const HubReply::Header& header) { return header.name == "Content-Length"; });
        break;
    case FaultKind::Length:
        reply.setHeader("Content-Length", fault.bytes);
        break;
    case FaultKind::LengthBefore:
        addLength(reply, fault.bytes, 0);
        break;
    case FaultKind::LengthAfter:
        addLength(reply, fault.bytes, 1);
        break;
    case FaultKind::ConnectionHeader:
        reply.setHeader("Connection", fault.bytes);
        break;
    default:
        break;
    }
}

void applyToBody(HubReply& reply, const Fault& fault)
{
    if (fault.kind == FaultKind::Garbage) {
        reply.setBody("{\"is-initialized\": <<<");
    } else if (fault.kind == FaultKind::Body) {
        reply.setBody(fault.bytes);
    } else if (fault.kind == FaultKind::InsertedText) {
        reply.setBody(reply.body.left(1) + fault.bytes + reply.body.mid(1));
    }
}

/// The hub ends connections only on the exact value; a peer that takes "Close" for it, or not, is
/// then seen for what it is.
bool announcesClose(const HubReply& reply)
{
    const qsizetype index = reply.indexOf("Connection");
    return index >= 0 && reply.headers.at(index).value.simplified() == "close";
}

QList<int> everyByte(qsizetype size)
{
    QList<int> offsets;
    for (int offset = 1; offset < size; ++offset) {
        offsets.append(offset);
    }
    return offsets;
}

void applyToDelivery(Delivery& delivery, const QByteArray& bytes, const Fault& fault)
{
    switch (fault.kind) {
    case FaultKind::Pieces:
        delivery.pieces = separatePieces(
            cutAt(bytes, fault.cuts.isEmpty() ? everyByte(bytes.size()) : fault.cuts));
        break;
    case FaultKind::Silence:
        delivery.pieces.clear();
        break;
    case FaultKind::CloseBeforeReply:
        delivery.pieces.clear();
        delivery.closeAfter = true;
        break;
    default:
        break;
    }
}

/// What there is to send: the reply, or the bytes that stand in its place.
QByteArray bytesToSend(const HubReply& reply, const QList<Fault>& faults)
{
    for (const Fault& fault : faults) {
        if (fault.kind == FaultKind::RawReply) {
            return fault.bytes;
        }
    }
    return reply.bytes();
}

void applyToPlan(ReplyPlan& plan, const HubReply& reply, const QByteArray& bytes,
                 const Fault& fault)
{
    if (fault.kind == FaultKind::CloseInBody) {
        plan.delivery.pieces = {{reply.headerBytes() + reply.body.first(reply.body.size() / 2)}};
        plan.delivery.closeAfter = true;
    } else if (fault.kind == FaultKind::Slow && !plan.delivery.pieces.isEmpty()) {
        plan.delivery.pieces.front().waitMs = fault.number;
    } else if (fault.kind == FaultKind::Reboot) {
        plan.delivery.pieces.clear();
        plan.rebootMs = fault.number;
    } else {
        applyToDelivery(plan.delivery, bytes, fault);
    }
}

} // namespace

bool preventsAction(const QList<Fault>& faults)
{
    return std::any_of(faults.begin(), faults.end(), prevents);
}

ReplyPlan planReply(HubReply reply, const QList<Fault>& faults)
{
    for (const Fault& fault : faults) {
        applyToBody(reply, fault);
    }
    for (const Fault& fault : faults) {
        applyToHeaders(reply, fault);
    }
    const QByteArray bytes = bytesToSend(reply, faults);
    ReplyPlan plan;
    plan.delivery.pieces = {{bytes}};
    plan.delivery.closeAfter = announcesClose(reply);
    for (const Fault& fault : faults) {
        applyToPlan(plan, reply, bytes, fault);
    }
    return plan;
}
