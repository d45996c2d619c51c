#pragma once

#include "basehttpsequence.h"

/// Logs in with the password; only its digest goes out.
class PostAuthenticate : public BaseHttpSequence
{
    Q_OBJECT

public:
    /// `token` is shared by all steps of the sequence and must outlive them.
    PostAuthenticate(const QString& address, const QString& password, QString* token,
                     QObject* parent);

    void buildRequest(QString& request) override;
    /// A hub may answer without a token of its own; the earlier one then stays valid.
    int evaluateReply(const QString& reply) override;

private:
    QString m_password;
    QString* m_token;
};
