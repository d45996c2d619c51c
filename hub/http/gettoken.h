#pragma once

#include "basehttpsequence.h"

/// Fetches the token under which the log-in is allowed.
class GetToken : public BaseHttpSequence
{
    Q_OBJECT

public:
    /// `token` is shared by all steps of the sequence and must outlive them.
    GetToken(const QString& address, QString* token, QObject* parent);

    void buildRequest(QString& request) override;
    int evaluateReply(const QString& reply) override;

private:
    QString* m_token;
};
