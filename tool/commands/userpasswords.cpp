#include "userpasswords.h"

#include "firstpassword.h"
#include "installwords.h"
#include "terminal.h"

#include <utility>

namespace {

QString firstPasswordRule()
{
    return QStringLiteral("%1 to %2 letters and digits are needed")
        .arg(QString::number(FirstPassword::minLength), QString::number(FirstPassword::maxLength));
}

/// Why this cannot be a hub's first password; empty when it can.
QString faultOfFirst(const QString& password)
{
    if (FirstPassword::isPossible(password)) {
        return {};
    }
    const QString fault =
        password.size() < FirstPassword::minLength   ? QStringLiteral("it is too short: %1")
        : password.size() > FirstPassword::maxLength ? QStringLiteral("it is too long: %1")
                                                     : QStringLiteral("it has a character that is "
                                                                      "neither A to Z nor a to z "
                                                                      "nor a digit: %1");
    return fault.arg(firstPasswordRule());
}

/// Only this answer to a log-in says something about the password.
bool isWrong(const QString& refusal)
{
    return refusal == u"401" || refusal.startsWith(u"401 ");
}

/// What the hub answered to a password that it did not take.
QString answerWords(const QString& refusal)
{
    const bool isOk = refusal == u"200" || refusal.startsWith(u"200 ");
    return troubleWords(
        {.trouble = isOk ? InstallTrouble::NotConfirmed : InstallTrouble::OtherStatus,
         .status = refusal});
}

/// Behind the hub's name.
QString refusalWords(const PasswordWish& wish)
{
    if (wish.isFirst) {
        return QStringLiteral("it did not take the password: ") + answerWords(wish.refusal);
    }
    return isWrong(wish.refusal)
               ? QStringLiteral("the password is wrong")
               : QStringLiteral("the log-in failed, and the password may be right: ") +
                     answerWords(wish.refusal);
}

/// Why nobody can be asked; empty when somebody can.
QString obstacle(const PasswordPrompt& prompt, const Terminal& terminal)
{
    const QString reason = QStringLiteral("%1 is no terminal to ask for the password");
    if (!prompt.isPossible()) {
        return reason.arg(QStringLiteral("standard input"));
    }
    return terminal.isWatched() ? QString() : reason.arg(QStringLiteral("standard error"));
}

} // namespace

UserPasswords::UserPasswords(const QHash<QString, QString>& names,
                             const QHash<QString, QString>& filed, const QString& path,
                             Terminal* terminal)
    : m_names(names)
    , m_filed(filed)
    , m_path(path)
    , m_terminal(terminal)
    , m_obstacle(obstacle(m_prompt, *terminal))
{
    connect(&m_prompt, SIGNAL(typed(QString)), this, SLOT(takeLine(QString)));
    connect(&m_prompt, SIGNAL(closed()), this, SLOT(takeEnd()));
    connect(&m_prompt, SIGNAL(lost()), this, SIGNAL(lost()));
}

void UserPasswords::ask(const PasswordWish& wish)
{
    if (m_filed.contains(wish.address)) {
        askFile(wish);
    } else if (!wish.isFirst && m_justSet.contains(wish.address)) {
        Q_EMIT given(wish.address, m_justSet.take(wish.address));
    } else if (!m_obstacle.isEmpty()) {
        Q_EMIT withheld(
            wish.address,
            m_path.isEmpty()
                ? m_obstacle + QStringLiteral(", and there is no --passwords")
                : QStringLiteral("%1 has no line for it, and %2").arg(m_path, m_obstacle));
    } else {
        m_wishes.append(wish);
        if (m_wishes.size() == 1) {
            serveNext();
        }
    }
}

void UserPasswords::stop()
{
    if (!m_wishes.isEmpty()) {
        m_prompt.stop();
        m_terminal->letGo();
    }
    m_wishes.clear();
    m_once.reset();
    m_justSet.clear();
}

void UserPasswords::askFile(const PasswordWish& wish)
{
    const QString password = m_filed.value(wish.address);
    const QString unfit = wish.isFirst ? faultOfFirst(password) : QString();
    if (wish.wasRefused) {
        Q_EMIT withheld(wish.address,
                        !wish.isFirst && isWrong(wish.refusal)
                            ? QStringLiteral("the hub refused the password of %1").arg(m_path)
                            : QStringLiteral("%1 to the password of %2")
                                  .arg(answerWords(wish.refusal), m_path));
    } else if (!unfit.isEmpty()) {
        Q_EMIT withheld(wish.address,
                        QStringLiteral("the password of %1 cannot be a hub's first one: %2")
                            .arg(m_path, unfit));
    } else {
        Q_EMIT given(wish.address, password);
    }
}

void UserPasswords::serveNext()
{
    if (!m_wishes.isEmpty()) {
        introduce(m_wishes.first());
        prompt();
    }
}

void UserPasswords::introduce(const PasswordWish& wish)
{
    const QString name = m_names.value(wish.address);
    if (!std::exchange(m_isExplained, true)) {
        m_terminal->say(
            QStringLiteral("passwords are not shown while you type; %1 leaves a hub out")
                .arg(PasswordPrompt::closingKeys()));
    }
    if (wish.wasRefused) {
        m_terminal->say(name + QStringLiteral(": ") + refusalWords(wish));
    }
    if (wish.isFirst) {
        m_terminal->say(name + QStringLiteral(": it has no password yet and gets its first one"));
        m_terminal->say(firstPasswordRule());
    }
}

/// In this order, so that nothing is shown of what is typed at once.
void UserPasswords::prompt()
{
    const PasswordWish& wish = m_wishes.first();
    const QString question = !wish.isFirst ? QStringLiteral("password of %1: ")
                             : m_once      ? QStringLiteral("once more, the new password of %1: ")
                                           : QStringLiteral("new password of %1: ");
    m_prompt.read();
    m_terminal->ask(question.arg(m_names.value(wish.address)));
}

void UserPasswords::takeLine(const QString& line)
{
    m_terminal->letGo();
    if (m_wishes.first().isFirst) {
        takeFirst(line);
    } else if (line.isEmpty()) {
        m_terminal->say(QStringLiteral("nothing was typed; %1 leaves it out")
                            .arg(PasswordPrompt::closingKeys()));
        prompt();
    } else {
        finish(line);
    }
}

void UserPasswords::takeFirst(const QString& line)
{
    if (!m_once && faultOfFirst(line).isEmpty()) {
        m_once = line;
        prompt();
    } else if (!m_once) {
        m_terminal->say(faultOfFirst(line));
        prompt();
    } else if (*m_once != line) {
        m_once.reset();
        m_terminal->say(QStringLiteral("the two passwords are not equal"));
        prompt();
    } else {
        m_justSet.insert(m_wishes.first().address, line);
        finish(line);
    }
}

void UserPasswords::takeEnd()
{
    m_terminal->letGo();
    finish(std::nullopt);
}

void UserPasswords::finish(const std::optional<QString>& password)
{
    m_once.reset();
    // As long as it is in the list, another wish waits.
    const QString hub = m_wishes.first().address;
    if (password) {
        Q_EMIT given(hub, *password);
    } else {
        Q_EMIT withheld(hub, QStringLiteral("you left it out"));
    }
    m_wishes.removeFirst();
    serveNext();
}
