#include "bodycheck.h"

#include "presetfilecheck.h"
#include "redaction.h"

#include <QRegularExpression>
#include <array>

namespace {

/// The form of a JSON body, as a pattern and as a person would write it down.
struct BodyForm
{
    Exchange exchange;
    const char* pattern;
    const char* shown;
};

constexpr std::array forms = {
    BodyForm{Exchange::SetPassword, R"(\{"admin": "[0-9a-f]{32}"\})", R"({"admin": "<hash>"})"},
    BodyForm{Exchange::LogIn, R"(\{"user-id": "admin", "password": "[0-9a-f]{32}"\})",
             R"({"user-id": "admin", "password": "<hash>"})"},
    BodyForm{Exchange::StartExport, R"(\{"export":1\})", R"({"export":1})"},
    BodyForm{Exchange::PresetEntry,
             R"re(\{"description": "(?:[^"\\]|\\["\\])*", "preset-number": [1-9][0-9]*, )re"
             R"re("source-type": 2, "external-source": ""\})re",
             R"({"description": "<name>", "preset-number": <number>, )"
             R"("source-type": 2, "external-source": ""})"},
    BodyForm{Exchange::Recall, R"(\{"preset-number": [1-9][0-9]*\})",
             R"({"preset-number": <number>})"},
    BodyForm{Exchange::Invalidate, R"(\{"access-token": "[^"\\]+", "status": "invalid"\})",
             R"({"access-token": "<token>", "status": "invalid"})"},
};

std::optional<QString> formDifference(const BodyForm& form, const QByteArray& body)
{
    const QRegularExpression pattern(
        QRegularExpression::anchoredPattern(QLatin1String(form.pattern)),
        QRegularExpression::DotMatchesEverythingOption);
    const QString text = QString::fromUtf8(body);
    if (text.toUtf8() != body) {
        return QStringLiteral("body: not UTF-8");
    }
    if (pattern.match(text).hasMatch()) {
        return std::nullopt;
    }
    return QStringLiteral("body: expected %1, got %2")
        .arg(QLatin1String(form.shown), redacted(body));
}

} // namespace

std::optional<QString> bodyDifference(Exchange exchange, const QByteArray& body)
{
    if (exchange == Exchange::HubFile || exchange == Exchange::DeviceFile) {
        return presetFileDifference(body, exchange == Exchange::HubFile);
    }
    for (const BodyForm& form : forms) {
        if (form.exchange == exchange) {
            return formDifference(form, body);
        }
    }
    if (!body.isEmpty()) {
        return QStringLiteral("body: expected nothing, got %1 bytes").arg(body.size());
    }
    return std::nullopt;
}
