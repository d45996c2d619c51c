#pragma once

#include "passwordsource.h"

#include <QHash>
#include <QList>
#include <QSet>

#include <algorithm>

/// A user who knows one password for all hubs, and notes what is asked for.
class KnownPasswords : public PasswordSource
{
    Q_OBJECT

public:
    explicit KnownPasswords(const QString& password)
        : m_password(password)
    {
    }

    void ask(const PasswordWish& wish) override
    {
        m_wishes.append(wish);
        const int asked = promptCount(wish.address);
        if (m_patient.contains(wish.address)) {
            return;
        }
        if (asked > m_maxAnswers.value(wish.address, asked)) {
            Q_EMIT withheld(wish.address, QStringLiteral("tired of it"));
        } else {
            Q_EMIT given(wish.address, m_password);
        }
    }

    /// Gives a hub no password that was asked for oftener than this.
    void giveUpAfter(const QString& hub, int answers) { m_maxAnswers.insert(hub, answers); }

    /// Leaves the question of a hub open until answer().
    void hold(const QString& hub) { m_patient.insert(hub); }
    void answer(const QString& hub)
    {
        m_patient.remove(hub);
        Q_EMIT given(hub, m_password);
    }

    /// Is gone, with all questions that are open.
    void leave() { Q_EMIT lost(); }

    const QList<PasswordWish>& wishes() const { return m_wishes; }

    int promptCount(const QString& hub) const
    {
        return int(std::count_if(m_wishes.begin(), m_wishes.end(),
                                 [&hub](const PasswordWish& wish) { return wish.address == hub; }));
    }

private:
    QString m_password;
    QHash<QString, int> m_maxAnswers; ///< by address
    QSet<QString> m_patient;
    QList<PasswordWish> m_wishes;
};
