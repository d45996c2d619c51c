#pragma once

#include "passwordprompt.h"
#include "passwordsource.h"

#include <QHash>
#include <QList>

#include <optional>

class Terminal;

/// The passwords of a file and, for hubs that it does not name, those that are typed at the
/// terminal: one hub after the other, a first password twice. A hub that refuses what the file has
/// is left out; at the terminal it may be tried again without limit.
class UserPasswords : public PasswordSource
{
    Q_OBJECT

public:
    /// `names` are what the hubs are called, by address; `filed` the passwords of the file `path`,
    /// which may be none. `terminal` is not owned.
    UserPasswords(const QHash<QString, QString>& names, const QHash<QString, QString>& filed,
                  const QString& path, Terminal* terminal);

    void ask(const PasswordWish& wish) override;

public Q_SLOTS:
    void stop() override;

private Q_SLOTS:
    void takeLine(const QString& line);
    void takeEnd();

private:
    void askFile(const PasswordWish& wish);
    void serveNext();
    void introduce(const PasswordWish& wish);
    void prompt();
    void takeFirst(const QString& line);
    void finish(const std::optional<QString>& password);

    QHash<QString, QString> m_names;
    QHash<QString, QString> m_filed;
    QString m_path;
    Terminal* m_terminal;
    PasswordPrompt m_prompt;
    /// Why nobody could be asked at first; a terminal that goes away later is lost instead.
    QString m_obstacle;
    QList<PasswordWish> m_wishes;      ///< for the terminal; the first one is being asked
    std::optional<QString> m_once;     ///< a first password that was typed once
    QHash<QString, QString> m_justSet; ///< first passwords that are still needed for the log-in
    bool m_isExplained = false;
};
