#include "loginanswers.h"

#include "finding.h"
#include "hands.h"

#include <QLineEdit>

namespace {

constexpr int longestHoldMs = 60000;

QString hubOf(const QWidget* dialog)
{
    return columnTexts(*tableOf(*dialog, "hubList"), "IP Address").first();
}

} // namespace

LoginAnswers::LoginAnswers(const QString& password)
    : m_password(password)
{
    for (const char* dialog : {"loginDialog", "initialPasswordDialog"}) {
        m_answerer.onDialog(
            dialog, [this](QWidget* shown) { answer(shown); },
            [this](QWidget* shown) { return !isHeld(hubOf(shown)); });
    }
}

void LoginAnswers::type(const QString& hub, const QStringList& passwords)
{
    m_passwords.insert(hub, passwords);
}

void LoginAnswers::cancel(const QString& hub)
{
    m_cancelled.append(hub);
}

void LoginAnswers::giveUpAfter(const QString& hub, int answers)
{
    m_maxAnswers.insert(hub, answers);
}

void LoginAnswers::hold(const QString& hub, std::function<bool()> ready, std::function<void()> look)
{
    m_heldHub = hub;
    m_ready = std::move(ready);
    m_look = std::move(look);
    m_patience.setRemainingTime(longestHoldMs);
}

bool LoginAnswers::isHeld(const QString& hub)
{
    if (hub != m_heldHub) {
        return false;
    }
    if (!m_ready() && !m_patience.hasExpired()) {
        return true;
    }
    m_heldHub.clear();
    m_look();
    // Looking may have gone as far as destroying the dialog.
    return true;
}

void LoginAnswers::answer(QWidget* dialog)
{
    const QString hub = hubOf(dialog);
    m_prompts.append(hub);
    const bool isTired =
        m_maxAnswers.contains(hub) && m_prompts.count(hub) > m_maxAnswers.value(hub);
    if (isTired || m_cancelled.removeOne(hub)) {
        Hands::pressKey(dialog, Qt::Key_Escape);
        return;
    }
    QStringList& passwords = m_passwords[hub];
    const QString password = passwords.isEmpty() ? m_password : passwords.takeFirst();
    for (QLineEdit* field : dialog->findChildren<QLineEdit*>()) {
        Hands::typeInto(field, password);
    }
    Hands::pressKey(dialog, Qt::Key_Return);
}
