// Arguments of the wizard, one per line of the input.
//
// - An accepted device has at least five fields, is one that the wizard can configure, has a MAC
//   address other than zeros and no quotes in model, label and version; and it is in no room.
// - A device written as an argument again reads the same, and so does an interface index.
// - All arguments together give the last index and the accepted devices in order, of each address
//   the first.
// - A configuration file is an argument that ends in ".tessel" and is no option; a log's file
// stands
//   behind "--log", and is neither an option nor a configuration.
// - What is told of an ignored argument is one line that ends with its first ":", "=" or "/".
#include "acceptancerule.h"
#include "commandline.h"
#include "fuzztarget.h"

#include <QString>

namespace {

QStringList fieldsOf(const DeviceData& device)
{
    return {device.modelName,  device.label,      device.version, device.ipAddress,
            device.macAddress, device.searchType, device.password};
}

void examineDevice(const QString& argument, const DeviceData& device)
{
    require(argument.count(u'/') >= 4, "a device has five fields");
    require(isDeviceAccepted(device.version, device.modelName), "a device can be configured");
    require(device.macAddress != u"00:00:00:00:00:00", "a device has a MAC address");
    const QString unquoted = device.modelName + device.label + device.version;
    require(!unquoted.contains(u'"'), "quotes are gone from model, label and version");
    require(device.roomNumber == 0 && !device.labelModified, "a device is in no room");

    const QStringList fields = fieldsOf(device);
    const auto again = deviceFromArgument(QStringLiteral("-D:") + fields.join(u'/'));
    require(again.has_value(), "a device written again is accepted");
    require(fieldsOf(*again) == fields, "a device written again reads the same");
}

void examineIndex(int index)
{
    require(index != -1, "-1 is no interface");
    const auto again = nicIndexFromArgument(QStringLiteral("-N:") + QString::number(index));
    require(again == index, "an index written again reads the same");
}

bool isConfiguration(const QString& argument)
{
    return argument.endsWith(u".tessel", Qt::CaseInsensitive) && !argument.startsWith(u'-');
}

/// `arguments` begin with the program's name.
void examineFiles(const QStringList& arguments)
{
    const QString configuration = configurationPath(arguments);
    require(configuration.isEmpty() || isConfiguration(configuration),
            "a configuration file has its ending");
    require(configuration.isEmpty() || arguments.mid(1).contains(configuration),
            "a configuration file is an argument");
    const QString log = logPath(arguments);
    require(!log.startsWith(u'-') && !isConfiguration(log),
            "a log is neither an option nor a configuration");
    bool isBehindOption = log.isEmpty();
    for (qsizetype index = 2; index < arguments.size(); ++index) {
        isBehindOption = isBehindOption || (arguments.at(index) == log &&
                                            arguments.at(index - 1) == QLatin1String("--log"));
    }
    require(isBehindOption, "a log stands behind its option");
}

void examineIgnored(const QString& shown)
{
    for (const QChar letter : shown) {
        require(letter.category() != QChar::Other_Control, "what is ignored is told in one line");
    }
    QString begin = shown;
    if (begin.endsWith(u"...")) {
        begin.chop(3);
    }
    for (const QChar separator : {u':', u'=', u'/'}) {
        const qsizetype place = begin.indexOf(separator);
        require(place < 0 || place == begin.size() - 1, "nothing behind a separator is told");
    }
}

} // namespace

void examine(const QByteArray& input)
{
    const QStringList arguments = QString::fromUtf8(input).split(u'\n');
    const QStringList all = QStringList(QStringLiteral("tessel")) + arguments;
    examineFiles(all);
    for (const QString& shown : ignoredArguments(all)) {
        examineIgnored(shown);
    }
    int lastIndex = 0;
    QStringList addresses;
    QList<QStringList> devices;
    for (const QString& argument : arguments) {
        if (const auto device = deviceFromArgument(argument)) {
            examineDevice(argument, *device);
            if (!addresses.contains(device->ipAddress)) {
                addresses.append(device->ipAddress);
                devices.append(fieldsOf(*device));
            }
        }
        if (const auto index = nicIndexFromArgument(argument)) {
            examineIndex(*index);
            lastIndex = *index;
        }
    }
    const CommandLine read = readCommandLine(arguments);
    require(read.nicIndex == lastIndex, "the last index counts");
    require(read.devices.size() == devices.size(), "of each address there is one device");
    for (qsizetype i = 0; i < devices.size(); ++i) {
        require(fieldsOf(read.devices.at(i)) == devices.at(i), "devices stand in order");
    }
}
