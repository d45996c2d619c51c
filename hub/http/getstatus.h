#pragma once

#include "basehttpsequence.h"

/// Goes on only with a hub that has a password.
class GetStatus : public BaseHttpSequence
{
    Q_OBJECT

public:
    using BaseHttpSequence::BaseHttpSequence;

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;
};
