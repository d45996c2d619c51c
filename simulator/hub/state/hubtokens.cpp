#include "hubtokens.h"

#include <QRandomGenerator>
#include <array>

namespace {

constexpr int maxTokens = 64;

QByteArray randomText()
{
    std::array<quint32, 5> words{};
    QRandomGenerator::system()->fillRange(words.data(), static_cast<qsizetype>(words.size()));
    return QByteArray(reinterpret_cast<const char*>(words.data()), sizeof(words)).toHex();
}

} // namespace

QByteArray HubTokens::issue(Access access)
{
    if (m_tokens.size() >= maxTokens) {
        m_tokens.removeFirst();
    }
    m_tokens.append({randomText(), access});
    return m_tokens.last().text;
}

HubTokens::Access HubTokens::accessOf(const QByteArray& token) const
{
    for (const Token& known : m_tokens) {
        if (known.text == token) {
            return known.access;
        }
    }
    return Access::None;
}

void HubTokens::revoke(const QByteArray& token)
{
    m_tokens.removeIf([&token](const Token& known) { return known.text == token; });
}

void HubTokens::revokeAll()
{
    m_tokens.clear();
}
