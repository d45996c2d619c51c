#pragma once

#include "basehttpsequence.h"

/// Ends the validity of the sequence's token.
class PostInvalidate : public BaseHttpSequence
{
    Q_OBJECT

public:
    /// `token` is shared by all steps of the sequence and must outlive them.
    PostInvalidate(const QString& address, const QString* token, QObject* parent);

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;

private:
    const QString* m_token;
};
