#include "redaction.h"

#include <QRegularExpression>

namespace {

constexpr qsizetype maxTextLength = 200;

QString shown(QString text)
{
    text.replace(u'\r', QLatin1String("\\r"));
    text.replace(u'\n', QLatin1String("\\n"));
    text.replace(u'\t', QLatin1String("\\t"));
    return text;
}

} // namespace

QString redacted(const QByteArray& bytes)
{
    // Shorter than an MD5 text, longer than a MAC address.
    static const QRegularExpression digits(QStringLiteral("[0-9A-Fa-f]{20,}"));
    static const QRegularExpression bearer(QStringLiteral("(bearer +)[^\\r\\n]+"),
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression password(
        QStringLiteral("(\"(?:password|admin|access-token)\"\\s*:\\s*\")[^\"]*"),
        QRegularExpression::CaseInsensitiveOption);

    QString text = QString::fromUtf8(bytes);
    text.replace(bearer, QStringLiteral("\\1<secret>"));
    text.replace(password, QStringLiteral("\\1<secret>"));
    text.replace(digits, QStringLiteral("<secret>"));
    text = shown(text);
    return text.size() > maxTextLength ? text.first(maxTextLength) + QStringLiteral("...") : text;
}
