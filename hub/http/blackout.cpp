#include "blackout.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace {

constexpr QLatin1String black("***");

// A hub's word that is shorter than this is no secret, and would black out half of the file.
constexpr qsizetype minSecretLength = 6;

// In the names of header lines and JSON values, of whatever case.
constexpr std::array secretNames{u"auth",    u"cookie",    u"credential", u"digest",  u"hash",
                                 u"key",     u"nonce",     u"passw",      u"private", u"secret",
                                 u"session", u"signature", u"token"};

// What the requests around the log-in say without giving anything away.
constexpr std::array harmlessNames{u"error", u"message", u"request", u"status", u"user-id"};

// The first password goes to the hub under the name of its account.
constexpr QLatin1String firstPasswordName("admin");

bool isSecretName(const QString& name)
{
    return std::any_of(secretNames.begin(), secretNames.end(), [&](const char16_t* part) {
        return name.contains(QStringView(part), Qt::CaseInsensitive);
    });
}

bool isHarmlessName(const QString& name)
{
    return std::find(harmlessNames.begin(), harmlessNames.end(), name) != harmlessNames.end();
}

bool isLogIn(const QString& requestLine)
{
    return requestLine.contains(u"/api/v0/auth/");
}

bool isExport(const QString& requestLine)
{
    return requestLine.contains(u"/api/v0/config/export/");
}

HttpMessage parts(const QString& text)
{
    const qsizetype end = text.indexOf(QStringLiteral("\r\n\r\n"));
    const QString head = end < 0 ? text : text.first(end);
    QStringList lines = head.split(QStringLiteral("\r\n"));
    const QString first = lines.takeFirst();
    return {first, lines, end < 0 ? QString() : text.sliced(end + 4)};
}

QString headerName(const QString& line)
{
    return line.section(u':', 0, 0);
}

/// Which values of a JSON text are to go.
enum class Secrets
{
    ByName,  ///< those whose names say so
    AllTexts ///< every text that is not known to be harmless, too
};

QJsonValue blackedOut(const QJsonValue& value, Secrets secrets);

QJsonObject blackedOut(const QJsonObject& object, Secrets secrets)
{
    QJsonObject result;
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const bool isSecret =
            isSecretName(entry.key()) ||
            (secrets == Secrets::AllTexts && entry->isString() && !isHarmlessName(entry.key()));
        result.insert(entry.key(),
                      isSecret ? QJsonValue(black) : blackedOut(entry.value(), secrets));
    }
    return result;
}

QJsonValue blackedOut(const QJsonValue& value, Secrets secrets)
{
    if (value.isObject()) {
        return blackedOut(value.toObject(), secrets);
    }
    if (!value.isArray()) {
        return value;
    }
    QJsonArray result;
    for (const QJsonValue entry : value.toArray()) {
        const bool isText = entry.isString() && secrets == Secrets::AllTexts;
        result.append(isText ? QJsonValue(black) : blackedOut(entry, secrets));
    }
    return result;
}

QString jsonText(const QJsonDocument& document)
{
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

/// An object or an array; an object without entries where the text is neither.
QJsonValue jsonValue(const QString& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body.toUtf8());
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

/// The texts below names that say that they are secret, however deep; all texts where `isSecret`.
QStringList secretsIn(const QJsonValue& value, bool isSecret)
{
    QStringList secrets;
    if (isSecret && value.isString()) {
        secrets.append(value.toString());
    }
    for (const QJsonValue entry : value.toArray()) {
        secrets += secretsIn(entry, isSecret);
    }
    const QJsonObject object = value.toObject();
    for (auto entry = object.begin(); entry != object.end(); ++entry) {
        const bool isNamedSo = isSecretName(entry.key()) || entry.key() == firstPasswordName;
        secrets += secretsIn(entry.value(), isSecret || isNamedSo);
    }
    return secrets;
}

/// A body around the log-in that is no JSON object may be anything.
QString logInBody(const QString& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body.toUtf8());
    if (!document.isObject()) {
        return body.isEmpty() ? body : QString(black);
    }
    return jsonText(QJsonDocument(blackedOut(document.object(), Secrets::AllTexts)));
}

/// Any other body stays as it is, unless it is JSON with names that say that they are secret.
QString otherBody(const QString& body)
{
    const QJsonValue value = jsonValue(body);
    const QJsonValue result = blackedOut(value, Secrets::ByName);
    if (result == value) {
        return body;
    }
    return result.isArray() ? jsonText(QJsonDocument(result.toArray()))
                            : jsonText(QJsonDocument(result.toObject()));
}

} // namespace

HttpMessage Blackout::request(const QString& text)
{
    return blackedOut(text.section(QStringLiteral("\r\n"), 0, 0), text, false);
}

HttpMessage Blackout::reply(const QString& requestLine, const QString& text)
{
    return blackedOut(requestLine, text, true);
}

HttpMessage Blackout::blackedOut(const QString& requestLine, const QString& text, bool isReply)
{
    HttpMessage message = parts(text);
    learnFrom(requestLine, message);
    message.firstLine = withoutKnown(message.firstLine);
    for (QString& line : message.headers) {
        const QString name = headerName(line);
        line = isSecretName(name) ? name + QStringLiteral(": ") + black : withoutKnown(line);
    }
    if (isReply && isExport(requestLine)) {
        message.body = message.body.isEmpty() ? QString() : QString(black);
    } else {
        message.body =
            withoutKnown(isLogIn(requestLine) ? logInBody(message.body) : otherBody(message.body));
    }
    return message;
}

/// Before anything of the message is written, so that it does not tell itself.
void Blackout::learnFrom(const QString& requestLine, const HttpMessage& message)
{
    for (const QString& line : message.headers) {
        if (headerName(line).compare(u"authorization", Qt::CaseInsensitive) == 0) {
            learn(line.section(u':', 1).simplified().section(u' ', 1));
        }
    }
    if (!isLogIn(requestLine)) {
        return;
    }
    for (const QString& secret : secretsIn(jsonValue(message.body), false)) {
        learn(secret);
    }
}

void Blackout::learn(const QString& secret)
{
    if (secret.size() >= minSecretLength && !m_known.contains(secret)) {
        m_known.append(secret);
    }
}

QString Blackout::withoutKnown(const QString& text) const
{
    QString result = text;
    for (const QString& secret : m_known) {
        result.replace(secret, black, Qt::CaseInsensitive);
    }
    return result;
}
