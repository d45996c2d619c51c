#include "faultreader.h"

#include "jsonfields.h"

#include <QHostAddress>
#include <QStringList>
#include <limits>

namespace {

constexpr int maxTimes = std::numeric_limits<int>::max();
const QString any = QStringLiteral("*");

/// A fault as texts, the same from either source.
struct FaultTexts
{
    QString device;
    QString exchange;
    QString kind;
    std::optional<QString> value;
};

/// The byte that an escape stands for, given what follows the backslash; moves `at` to the
/// escape's last character.
std::optional<char> escapedByte(const QString& text, qsizetype& at)
{
    const QChar sign = text.at(at);
    if (sign == u'r') {
        return '\r';
    }
    if (sign == u'n') {
        return '\n';
    }
    if (sign == u'\\') {
        return '\\';
    }
    bool ok = false;
    const int byte = text.mid(at + 1, 2).toInt(&ok, 16);
    if (sign != u'x' || !ok || text.size() < at + 3) {
        return std::nullopt;
    }
    at += 2;
    return static_cast<char>(byte);
}

std::optional<QByteArray> unescaped(const QString& text)
{
    QByteArray bytes;
    for (qsizetype at = 0; at < text.size(); ++at) {
        const qsizetype start = at;
        while (at < text.size() && text.at(at) != u'\\') {
            ++at;
        }
        bytes += text.mid(start, at - start).toUtf8();
        if (at == text.size()) {
            break;
        }
        ++at;
        const std::optional<char> byte =
            at < text.size() ? escapedByte(text, at) : std::optional<char>();
        if (!byte) {
            return std::nullopt;
        }
        bytes += *byte;
    }
    return bytes;
}

std::optional<QList<int>> offsets(const QString& text)
{
    QList<int> numbers;
    for (const QString& part : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        bool ok = false;
        numbers.append(part.toInt(&ok));
        if (!ok || numbers.last() < 0) {
            return std::nullopt;
        }
    }
    return numbers;
}

bool setNumber(Fault& fault, const std::optional<QString>& value)
{
    bool ok = false;
    fault.number = value.value_or(QString()).toInt(&ok);
    return ok && fault.number >= 0;
}

bool setBytes(Fault& fault, const std::optional<QString>& value)
{
    const std::optional<QByteArray> bytes = value ? unescaped(*value) : std::nullopt;
    fault.bytes = bytes.value_or(QByteArray());
    return bytes.has_value();
}

bool setCuts(Fault& fault, const std::optional<QString>& value)
{
    const std::optional<QList<int>> cuts = offsets(value.value_or(QString()));
    fault.cuts = cuts.value_or(QList<int>());
    return cuts.has_value();
}

bool setValue(Fault& fault, const std::optional<QString>& value)
{
    switch (valueOf(fault.kind)) {
    case FaultValue::Number:
        return setNumber(fault, value);
    case FaultValue::Bytes:
        return setBytes(fault, value);
    case FaultValue::Cuts:
        return setCuts(fault, value);
    case FaultValue::None:
        break;
    }
    return !value;
}

/// Why a fault of this kind cannot strike there or as often; nothing when it can.
std::optional<QString> mismatch(const Fault& fault, const FaultTexts& texts)
{
    if (fault.exchange && channelOf(*fault.exchange) != channelOf(fault.kind)) {
        return QStringLiteral("\"%1\" cannot happen to \"%2\"").arg(texts.kind, texts.exchange);
    }
    if (fault.exchange && isPerConnection(fault.kind)) {
        return QStringLiteral("\"%1\" strikes connections, so that its exchange is \"*\"")
            .arg(texts.kind);
    }
    if (isRefusal(fault.kind) && (fault.times >= 0 || fault.skip > 0)) {
        return QStringLiteral("\"%1\" lasts, so that nothing of it can be counted or skipped")
            .arg(texts.kind);
    }
    return std::nullopt;
}

/// Why these texts make no fault; nothing when they made `fault`.
std::optional<QString> fill(Fault& fault, const FaultTexts& texts)
{
    const std::optional<FaultKind> kind = faultKindNamed(texts.kind);
    if (!kind) {
        return QStringLiteral("there is no kind of fault \"%1\"").arg(texts.kind);
    }
    fault.kind = *kind;
    fault.address = texts.device == any ? QString() : texts.device;
    if (!fault.address.isEmpty() && QHostAddress(fault.address).isNull()) {
        return QStringLiteral("\"%1\" is no device's address").arg(texts.device);
    }
    fault.exchange = exchangeNamed(texts.exchange);
    if (!fault.exchange && texts.exchange != any) {
        return QStringLiteral("there is no exchange \"%1\"").arg(texts.exchange);
    }
    if (std::optional<QString> problem = mismatch(fault, texts)) {
        return problem;
    }
    if (!setValue(fault, texts.value)) {
        return QStringLiteral("the value does not fit \"%1\"").arg(texts.kind);
    }
    return std::nullopt;
}

/// Takes "*TIMES" off the kind; false when it is no count.
bool takeTimes(QString& kind, Fault& fault)
{
    const qsizetype star = kind.indexOf(u'*');
    if (star < 0) {
        return true;
    }
    bool ok = false;
    fault.times = kind.mid(star + 1).toInt(&ok);
    kind.truncate(star);
    return ok && fault.times > 0;
}

/// A JSON value in the form that it has on the command line.
std::optional<QString> valueText(const QJsonValue& value)
{
    if (value.isUndefined()) {
        return std::nullopt;
    }
    if (value.isArray()) {
        QStringList parts;
        const QJsonArray array = value.toArray();
        for (const auto& part : array) {
            parts.append(part.toVariant().toString());
        }
        return parts.join(QLatin1Char(';'));
    }
    return value.toVariant().toString();
}

} // namespace

std::optional<Fault> faultFromText(const QString& text, QString* error)
{
    const QStringList parts = text.split(QLatin1Char(','));
    if (parts.size() < 3) {
        *error = QStringLiteral("fault \"%1\": expected DEVICE,EXCHANGE,KIND").arg(text);
        return std::nullopt;
    }
    FaultTexts texts{parts.at(0), parts.at(1), parts.at(2), {}};
    if (parts.size() > 3) {
        texts.value = parts.mid(3).join(QLatin1Char(','));
    }
    Fault fault;
    std::optional<QString> problem;
    if (!takeTimes(texts.kind, fault)) {
        problem = QStringLiteral("\"*\" is not followed by a count");
    } else {
        problem = fill(fault, texts);
    }
    if (problem) {
        *error = QStringLiteral("fault \"%1\": %2").arg(text, *problem);
        return std::nullopt;
    }
    return fault;
}

std::optional<Fault> faultFromJson(const QJsonObject& object, const QString& where, QString* error)
{
    JsonFields fields(object, where, error);
    Fault fault;
    FaultTexts texts;
    texts.device = fields.text(QStringLiteral("device"), any);
    texts.exchange = valueText(fields.value(QStringLiteral("at"))).value_or(any);
    texts.kind = fields.text(QStringLiteral("kind"), QString());
    texts.value = valueText(fields.value(QStringLiteral("value")));
    fault.times = fields.number(QStringLiteral("times"), -1, 1, maxTimes);
    fault.skip = fields.number(QStringLiteral("skip"), 0, 0, maxTimes);
    fields.finish();
    if (const std::optional<QString> problem = fill(fault, texts); problem && error->isEmpty()) {
        *error = where + QStringLiteral(": ") + *problem;
    }
    return error->isEmpty() ? std::optional(fault) : std::nullopt;
}
