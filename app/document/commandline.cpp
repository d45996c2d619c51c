#include "commandline.h"

#include "acceptancerule.h"

#include <QSet>

namespace {

constexpr int noNic = -1; // how the starting program says that it has chosen no interface
constexpr qsizetype requiredFields = 5;

constexpr qsizetype maxShown = 40;

QString withoutQuotes(QString text)
{
    return text.remove(QLatin1Char('"'));
}

DeviceData deviceFrom(const QStringList& fields)
{
    DeviceData device;
    device.modelName = withoutQuotes(fields.at(0));
    device.label = withoutQuotes(fields.at(1));
    device.version = withoutQuotes(fields.at(2));
    device.ipAddress = fields.at(3);
    device.macAddress = fields.at(4);
    device.searchType = fields.value(5);
    device.password = fields.value(6);
    return device;
}

/// The number of an interface argument, `noNic` included.
std::optional<int> numberFromArgument(const QString& argument)
{
    const QStringList parts = argument.split(QLatin1Char(':'));
    if (parts.size() != 2 || parts.first().compare(u"-N", Qt::CaseInsensitive) != 0) {
        return std::nullopt;
    }
    bool ok = false;
    const int number = parts.last().toInt(&ok);
    return ok ? std::optional(number) : std::nullopt;
}

/// The beginning of an argument, without its value, fit for a line on a terminal.
QString shown(const QString& argument)
{
    const QString separators = QStringLiteral(":=/");
    QString text;
    for (const QChar c : argument) {
        if (text.size() == maxShown) {
            return text + QStringLiteral("...");
        }
        text += c >= u' ' && c <= u'~' ? c : QChar(u'?');
        if (separators.contains(c)) {
            return text + QStringLiteral("...");
        }
    }
    return text;
}

} // namespace

CommandLine readCommandLine(const QStringList& arguments)
{
    CommandLine commandLine;
    QSet<QString> addresses;
    for (const QString& argument : arguments) {
        if (const std::optional<int> index = nicIndexFromArgument(argument)) {
            commandLine.nicIndex = *index;
        }
        const std::optional<DeviceData> device = deviceFromArgument(argument);
        if (device && !addresses.contains(device->ipAddress)) {
            addresses.insert(device->ipAddress);
            commandLine.devices.append(*device);
        }
    }
    return commandLine;
}

std::optional<int> nicIndexFromArgument(const QString& argument)
{
    const std::optional<int> number = numberFromArgument(argument);
    return number != noNic ? number : std::nullopt;
}

std::optional<DeviceData> deviceFromArgument(const QString& argument)
{
    const QString prefix = QStringLiteral("-D:");
    if (!argument.startsWith(prefix, Qt::CaseInsensitive)) {
        return std::nullopt;
    }
    const QStringList fields = argument.sliced(prefix.size()).split(QLatin1Char('/'));
    if (fields.size() < requiredFields) {
        return std::nullopt;
    }
    DeviceData device = deviceFrom(fields);
    if (!isDeviceAccepted(device.version, device.modelName) ||
        device.macAddress == u"00:00:00:00:00:00") {
        return std::nullopt;
    }
    return device;
}

QStringList ignoredArguments(const QStringList& arguments)
{
    QStringList ignored;
    // A device's fields are joined by "/", the password last, and a shell may have parted them at
    // spaces: behind the first "/" any argument can be a piece of a password.
    bool mayBePassword = false;
    for (const QString& argument : arguments.mid(1)) {
        if (!numberFromArgument(argument) && !deviceFromArgument(argument)) {
            ignored.append(mayBePassword ? QStringLiteral("...") : shown(argument));
        }
        mayBePassword = mayBePassword || argument.contains(u'/');
    }
    return ignored;
}
