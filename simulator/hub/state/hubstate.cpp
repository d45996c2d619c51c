#include "hubstate.h"

#include "presetfilecheck.h"

#include <QCryptographicHash>
#include <QJsonDocument>
#include <QRegularExpression>
#include <array>

using Access = HubTokens::Access;

/// Who may make a request, and which operation carries it out.
struct HubState::Rule
{
    Exchange exchange;
    Access needed;
    HubReply (HubState::*operation)(const HubRequest&);
};

namespace {

const QString tokenKey = QStringLiteral("access-token");
const QString requestKey = QStringLiteral("request");
const QString numberKey = QStringLiteral("preset-number");

const QLatin1String descriptionKey("description");

QJsonObject bodyOf(const HubRequest& request)
{
    return QJsonDocument::fromJson(request.body).object();
}

/// The hash in a body; empty when it is no MD5 text.
QByteArray hashIn(const QJsonObject& body, QLatin1String key)
{
    static const QRegularExpression form(QStringLiteral("^[0-9a-f]{32}$"));
    const QString text = body.value(key).toString();
    return form.match(text).hasMatch() ? text.toLatin1() : QByteArray();
}

bool isPresetNumber(int number)
{
    return number >= 1 && number <= HubState::maxPreset;
}

QJsonObject accepted()
{
    return {{requestKey, QStringLiteral("accepted")}};
}

QByteArray exportedConfiguration(const HubDescription& hub)
{
    return "<provisioning><config sys.serial=\"" + hub.serial.toHtmlEscaped().toUtf8() +
           "\"/></provisioning>";
}

} // namespace

QString StoredPreset::description() const
{
    return QJsonDocument::fromJson(entry).object().value(descriptionKey).toString();
}

HubState::HubState(const HubDescription& description)
    : m_description(description)
{
    if (description.password) {
        m_passwordHash =
            QCryptographicHash::hash(description.password->toUtf8(), QCryptographicHash::Md5)
                .toHex();
    }
}

const HubState::Rule* HubState::ruleFor(Exchange exchange)
{
    static constexpr std::array rules = {
        Rule{Exchange::Status, Access::None, &HubState::status},
        Rule{Exchange::Token, Access::None, &HubState::token},
        Rule{Exchange::SetPassword, Access::Guest, &HubState::setPassword},
        Rule{Exchange::LogIn, Access::Guest, &HubState::logIn},
        Rule{Exchange::StartExport, Access::Admin, &HubState::startExport},
        Rule{Exchange::ReadExport, Access::Admin, &HubState::readExport},
        Rule{Exchange::PresetEntry, Access::Admin, &HubState::presetEntry},
        Rule{Exchange::HubFile, Access::Admin, &HubState::presetFile},
        Rule{Exchange::DeviceFile, Access::Admin, &HubState::presetFile},
        Rule{Exchange::Recall, Access::Admin, &HubState::recall},
        Rule{Exchange::Invalidate, Access::Admin, &HubState::invalidate},
        Rule{Exchange::Identification, Access::Admin, &HubState::identification},
    };
    for (const Rule& rule : rules) {
        if (rule.exchange == exchange) {
            return &rule;
        }
    }
    return nullptr;
}

HubReply HubState::handle(const HubRequest& request)
{
    const Rule* rule = ruleFor(request.exchange);
    if (rule == nullptr) {
        return HubReply::error(404, QStringLiteral("no such resource"));
    }
    const QByteArray bearer = request.bearer();
    const Access given = m_tokens.accessOf(bearer);
    if ((!bearer.isEmpty() && given == Access::None) || given < rule->needed) {
        return HubReply::error(401, QStringLiteral("no valid access token"));
    }
    return (this->*rule->operation)(request);
}

void HubState::reboot()
{
    m_tokens.revokeAll();
    m_pollsLeft.reset();
}

HubReply HubState::status(const HubRequest& /*request*/)
{
    return HubReply::json(200, {{QStringLiteral("is-initialized"), isInitialised() ? 1 : 0}});
}

HubReply HubState::token(const HubRequest& /*request*/)
{
    return HubReply::json(200, {{tokenKey, QLatin1String(m_tokens.issue(Access::Guest))}});
}

HubReply HubState::setPassword(const HubRequest& request)
{
    if (isInitialised()) {
        return HubReply::error(403, QStringLiteral("a password is already set"));
    }
    const QByteArray hash = hashIn(bodyOf(request), QLatin1String("admin"));
    if (hash.isEmpty()) {
        return HubReply::error(400, QStringLiteral("no password hash"));
    }
    m_passwordHash = hash;
    return HubReply::json(200, accepted(), QStringLiteral("first password set"));
}

HubReply HubState::logIn(const HubRequest& request)
{
    const QJsonObject body = bodyOf(request);
    if (!isInitialised()) {
        return HubReply::error(403, QStringLiteral("no password is set yet"));
    }
    if (body.value(QLatin1String("user-id")).toString() != u"admin" ||
        hashIn(body, QLatin1String("password")) != m_passwordHash) {
        return HubReply::error(401, QStringLiteral("wrong user or password"));
    }
    m_tokens.revoke(request.bearer());
    ++m_logIns;
    return HubReply::json(200, {{tokenKey, QLatin1String(m_tokens.issue(Access::Admin))}},
                          QStringLiteral("logged in"));
}

HubReply HubState::startExport(const HubRequest& request)
{
    if (bodyOf(request).value(QLatin1String("export")).toInt() != 1) {
        return HubReply::error(400, QStringLiteral("no export asked for"));
    }
    m_pollsLeft = m_description.exportPolls;
    return HubReply::json(200, accepted(), QStringLiteral("export begun"));
}

HubReply HubState::readExport(const HubRequest& /*request*/)
{
    if (!m_pollsLeft) {
        return HubReply::error(409, QStringLiteral("no export was begun"));
    }
    if (*m_pollsLeft > 0) {
        --*m_pollsLeft;
        return HubReply::json(200, {{QStringLiteral("export"), QStringLiteral("running")}});
    }
    HubReply reply =
        HubReply::content("application/xml;charset=utf-8", exportedConfiguration(m_description));
    reply.setHeader("Content-Disposition",
                    "attachment; filename=\"" + m_description.exportFile.toUtf8() + '"');
    reply.note = QStringLiteral("export ready");
    return reply;
}

HubReply HubState::presetEntry(const HubRequest& request)
{
    const QJsonObject entry = bodyOf(request);
    const int number = entry.value(numberKey).toInt();
    if (!isPresetNumber(number) || !entry.value(descriptionKey).isString()) {
        return HubReply::error(400, QStringLiteral("no preset entry"));
    }
    // An entry makes the preset anew: files of an earlier one of that number go with it.
    m_presets.insert(number, {request.body, {}});
    return HubReply::json(200, accepted(),
                          QStringLiteral("preset %1 \"%2\" entered")
                              .arg(QString::number(number), m_presets[number].description()));
}

HubReply HubState::presetFile(const HubRequest& request)
{
    if (!m_presets.contains(request.presetNumber)) {
        return HubReply::error(404, QStringLiteral("no such preset"));
    }
    if (!isStorageName(request.storage)) {
        return HubReply::error(400, QStringLiteral("no storage name"));
    }
    if (!isPresetFile(request.body)) {
        return HubReply::error(400, QStringLiteral("no preset file"));
    }
    m_presets[request.presetNumber].files.insert(request.storage, request.body);
    return HubReply::json(200, accepted());
}

HubReply HubState::recall(const HubRequest& request)
{
    const int number = bodyOf(request).value(numberKey).toInt();
    if (!m_presets.contains(number)) {
        return HubReply::error(404, QStringLiteral("no such preset"));
    }
    m_recalledPreset = number;
    return HubReply::json(200, accepted(),
                          QStringLiteral("preset %1 recalled").arg(QString::number(number)));
}

HubReply HubState::invalidate(const HubRequest& request)
{
    const QJsonObject body = bodyOf(request);
    const QByteArray token = body.value(tokenKey).toString().toLatin1();
    if (body.value(QLatin1String("status")).toString() != u"invalid" ||
        m_tokens.accessOf(token) == Access::None) {
        return HubReply::error(400, QStringLiteral("no token to invalidate"));
    }
    m_tokens.revoke(token);
    return HubReply::json(200, {{QStringLiteral("status"), QStringLiteral("invalid")}},
                          QStringLiteral("logged out, holds %1 presets").arg(m_presets.size()));
}

HubReply HubState::identification(const HubRequest& /*request*/)
{
    ++m_identifications;
    return HubReply::json(200, accepted(), QStringLiteral("shows itself"));
}
