#include "exchange.h"

#include <array>

namespace {

struct NamedExchange
{
    Exchange exchange;
    const char* name;
};

constexpr std::array names = {
    NamedExchange{Exchange::Status, "status"},
    NamedExchange{Exchange::Token, "token"},
    NamedExchange{Exchange::SetPassword, "set-password"},
    NamedExchange{Exchange::LogIn, "log-in"},
    NamedExchange{Exchange::StartExport, "start-export"},
    NamedExchange{Exchange::ReadExport, "read-export"},
    NamedExchange{Exchange::PresetEntry, "preset-entry"},
    NamedExchange{Exchange::HubFile, "hub-file"},
    NamedExchange{Exchange::DeviceFile, "device-file"},
    NamedExchange{Exchange::Recall, "recall"},
    NamedExchange{Exchange::Invalidate, "invalidate"},
    NamedExchange{Exchange::Identification, "identification"},
    NamedExchange{Exchange::UnknownRequest, "unknown-request"},
    NamedExchange{Exchange::DeviceId, "device-id"},
    NamedExchange{Exchange::DeviceName, "device-name"},
    NamedExchange{Exchange::FirmwareVersion, "version"},
    NamedExchange{Exchange::SerialNumber, "serial-number"},
    NamedExchange{Exchange::CurrentPreset, "current-preset"},
    NamedExchange{Exchange::RecallCommand, "recall-command"},
    NamedExchange{Exchange::IdentifyCommand, "identify-command"},
    NamedExchange{Exchange::UnknownCommand, "unknown-command"},
    NamedExchange{Exchange::Discovery, "discovery"},
};

} // namespace

Channel channelOf(Exchange exchange)
{
    if (exchange == Exchange::Discovery) {
        return Channel::Discovery;
    }
    return exchange <= Exchange::UnknownRequest ? Channel::Http : Channel::Text;
}

QString exchangeName(Exchange exchange)
{
    for (const NamedExchange& row : names) {
        if (row.exchange == exchange) {
            return QLatin1String(row.name);
        }
    }
    return {};
}

QStringList exchangeNames(Channel channel)
{
    QStringList found;
    for (const NamedExchange& row : names) {
        if (channelOf(row.exchange) == channel) {
            found.append(QLatin1String(row.name));
        }
    }
    return found;
}

std::optional<Exchange> exchangeNamed(QStringView name)
{
    bool isNumber = false;
    const int step = name.toInt(&isNumber);
    if (isNumber && step >= 0 && step <= lastInstallationStep) {
        return static_cast<Exchange>(step);
    }
    for (const NamedExchange& row : names) {
        if (name == QLatin1String(row.name)) {
            return row.exchange;
        }
    }
    return std::nullopt;
}
