#pragma once

class QString;

/// One request of a sequence that HttpReadWrite works through.
///
/// The engine owns its steps through their QObject side, so a step is never deleted through this
/// interface.
class IHttpSequence
{
public:
    // What evaluateReply() returns; every other value counts as Failed.
    static constexpr int Failed = -1;   ///< the sequence ends without success
    static constexpr int Succeeded = 0; ///< go on with the next step
    static constexpr int TryAgain = 1;  ///< send the same request again after a pause

    IHttpSequence() = default;
    IHttpSequence(const IHttpSequence&) = delete;
    IHttpSequence& operator=(const IHttpSequence&) = delete;
    IHttpSequence(IHttpSequence&&) = delete;
    IHttpSequence& operator=(IHttpSequence&&) = delete;

    /// Fills `request` with the complete request text. Called by the engine each time the request
    /// is about to be written.
    virtual void buildRequest(QString& request) = 0;

    /// Judges the whole text of the reply. Called by the engine once per complete reply.
    virtual int evaluateReply(const QString& reply) = 0;

protected:
    ~IHttpSequence() = default;
};
