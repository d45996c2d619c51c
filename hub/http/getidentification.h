#pragma once

#include "basehttpsequence.h"

/// Makes the hub show itself.
class GetIdentification : public BaseHttpSequence
{
    Q_OBJECT

public:
    /// `token` is shared by all steps of the sequence and must outlive them.
    GetIdentification(const QString& address, const QString* token, QObject* parent);

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;

private:
    const QString* m_token;
};
