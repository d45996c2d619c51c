#include "commandline.h"

#include "acceptancerule.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {

constexpr int noNic = -1; // how the starting program says that it has chosen no interface
constexpr qsizetype requiredFields = 5;

constexpr qsizetype maxShown = 40;

constexpr QLatin1String logOption("--log");

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

bool isConfigurationPath(const QString& argument)
{
    // Where a file is double-clicked, its ending may be written in capitals.
    return argument.endsWith(u".tessel", Qt::CaseInsensitive) && !argument.startsWith(u'-');
}

/// Whether a log's option stands here with a file behind it. Who forgets the file's name is to lose
/// neither a hall, to which lines would be added, nor the argument that follows.
bool isLogAt(const QStringList& arguments, qsizetype index)
{
    const QString file = arguments.value(index + 1);
    return arguments.at(index) == logOption && !file.isEmpty() && !file.startsWith(u'-') &&
           !isConfigurationPath(file);
}

/// Without the log's option and the file behind it.
QStringList withoutLog(const QStringList& arguments)
{
    QStringList others;
    for (qsizetype index = 0; index < arguments.size(); ++index) {
        if (isLogAt(arguments, index)) {
            ++index;
        } else {
            others.append(arguments.at(index));
        }
    }
    return others;
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

QString configurationPath(const QStringList& arguments)
{
    const QStringList others = withoutLog(arguments.mid(1));
    const auto path = std::find_if(others.begin(), others.end(), isConfigurationPath);
    return path != others.end() ? *path : QString();
}

QString logPath(const QStringList& arguments)
{
    QString path;
    for (qsizetype index = 1; index < arguments.size(); ++index) {
        if (isLogAt(arguments, index)) {
            path = arguments.at(++index);
        }
    }
    return path;
}

QStringList ignoredArguments(const QStringList& arguments)
{
    QStringList ignored;
    bool hasFile = false;
    // A device's fields are joined by "/", the password last, and a shell may have parted them at
    // spaces: behind the first "/" that is none of a file, any argument can be a piece of a
    // password.
    bool mayBePassword = false;
    for (const QString& argument : withoutLog(arguments.mid(1))) {
        const bool isFile = isConfigurationPath(argument);
        const bool isUsed = (isFile && !std::exchange(hasFile, true)) ||
                            numberFromArgument(argument) || deviceFromArgument(argument);
        if (!isUsed) {
            const QString text = isFile ? QFileInfo(argument).fileName() : argument;
            ignored.append(mayBePassword ? QStringLiteral("...") : shown(text));
        }
        mayBePassword = mayBePassword || (!isFile && argument.contains(u'/'));
    }
    return ignored;
}
