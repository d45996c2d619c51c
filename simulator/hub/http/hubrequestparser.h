#pragma once

#include "hubrequest.h"

/// What the bytes at the front of a connection amount to.
struct RequestReading
{
    enum class Verdict
    {
        Incomplete, ///< more bytes are needed
        Complete,   ///< `request` holds a request, `consumed` bytes belong to it
        Malformed   ///< no request can begin like this; `problem` says why
    };

    Verdict verdict = Verdict::Incomplete;
    HubRequest request = {};
    qsizetype consumed = 0;
    QString problem = {};
};

/// Reads the first request of `bytes`, which may hold less than one or more than one. The request
/// is not routed yet; of one that lacks only some of its body, the header is there.
RequestReading readRequest(const QByteArray& bytes);
