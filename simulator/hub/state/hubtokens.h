#pragma once

#include <QByteArray>
#include <QList>

/// The access tokens that a hub has handed out and still honours.
class HubTokens
{
public:
    /// What a token opens.
    enum class Access
    {
        None,  ///< unknown or invalidated
        Guest, ///< setting the first password and logging in
        Admin  ///< everything
    };

    /// A new token that nobody can guess. The oldest ones lapse when there are too many.
    QByteArray issue(Access access);
    /// What this token opens.
    Access accessOf(const QByteArray& token) const;
    /// The token opens nothing any more.
    void revoke(const QByteArray& token);
    /// No token opens anything any more.
    void revokeAll();

private:
    struct Token
    {
        QByteArray text;
        Access access;
    };

    QList<Token> m_tokens;
};
