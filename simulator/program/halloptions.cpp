#include "halloptions.h"

#include "faultreader.h"
#include "hallhelp.h"
#include "hallreader.h"

#include <QCommandLineParser>

namespace {

struct Option
{
    QString name;
    QString description;
    QString valueName;
    QString defaultValue;
};

QList<Option> optionTable()
{
    const QString base = QLatin1String(HallDescription::defaultBase);
    return {
        {QStringLiteral("hubs"), QStringLiteral("Number of hubs."), QStringLiteral("number"),
         QStringLiteral("4")},
        {QStringLiteral("peripherals"), QStringLiteral("Number of other devices."),
         QStringLiteral("number"), QStringLiteral("20")},
        {QStringLiteral("base"), QStringLiteral("Address of the first device."),
         QStringLiteral("address"), base},
        {QStringLiteral("second-addresses"),
         QStringLiteral("Number of hubs that have a second network port."),
         QStringLiteral("number"), QStringLiteral("0")},
        {QStringLiteral("password"),
         QStringLiteral("Password of all hubs; without it they have never been given one."),
         QStringLiteral("password"), QString()},
        {QStringLiteral("export-polls"),
         QStringLiteral("How often a hub's export is asked for in vain."), QStringLiteral("number"),
         QStringLiteral("2")},
        {QStringLiteral("discovery"), QStringLiteral("Answer discovery queries."), QString(),
         QString()},
        {QStringLiteral("discovery-listen"),
         QStringLiteral("Answer discovery queries that come to this address."),
         QStringLiteral("address"), QStringLiteral("0.0.0.0")},
        {QStringLiteral("store"), QStringLiteral("Write what the devices hold into this folder."),
         QStringLiteral("folder"), QString()},
        {QStringLiteral("fault"),
         QStringLiteral("A fault: DEVICE,EXCHANGE,KIND[*TIMES][,VALUE]. May be given repeatedly."),
         QStringLiteral("fault"), QString()},
    };
}

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(
        QStringLiteral("A simulated hall: hubs, microphones, speakers and controllers,\n"
                       "to train and test on."));
    parser.addOption({{QStringLiteral("h"), QStringLiteral("help"), QStringLiteral("help-all")},
                      QStringLiteral("Show this text.")});
    parser.addOption({QStringLiteral("version"), QStringLiteral("Show the version.")});
    for (const Option& option : optionTable()) {
        const QString byDefault = option.defaultValue.isEmpty()
                                      ? QString()
                                      : QStringLiteral(" Default: %1.").arg(option.defaultValue);
        parser.addOption(
            {option.name, option.description + byDefault, option.valueName, option.defaultValue});
    }
    parser.addPositionalArgument(
        QStringLiteral("description"),
        QStringLiteral("A file that describes the hall, instead of counts."),
        QStringLiteral("[description.json]"));
}

/// The numbers of the command line, with the first that is none told.
class Numbers
{
public:
    Numbers(const QCommandLineParser& parser, QString* error)
        : m_parser(parser)
        , m_error(error)
    {
    }

    int number(const QString& option, int most) const
    {
        bool ok = false;
        const int number = m_parser.value(option).toInt(&ok);
        if ((!ok || number < 0 || number > most) && m_error->isEmpty()) {
            *m_error = QStringLiteral("--%1 takes a number from 0 to %2").arg(option).arg(most);
        }
        return number;
    }

private:
    const QCommandLineParser& m_parser;
    QString* m_error;
};

std::optional<HallDescription> hallByCounts(const QCommandLineParser& parser, QString* error)
{
    const Numbers numbers(parser, error);
    const int hubs = numbers.number(QStringLiteral("hubs"), HallDescription::maxDevices);
    const int peripherals =
        numbers.number(QStringLiteral("peripherals"), HallDescription::maxDevices);
    const int second = numbers.number(QStringLiteral("second-addresses"), hubs);
    if (!error->isEmpty()) {
        return std::nullopt;
    }
    std::optional<HallDescription> hall =
        HallDescription::byCounts(hubs, peripherals, parser.value(QStringLiteral("base")));
    if (!hall) {
        *error = QStringLiteral("no hall of 1 to %1 devices from the address \"%2\" on")
                     .arg(QString::number(HallDescription::maxDevices),
                          parser.value(QStringLiteral("base")));
        return std::nullopt;
    }
    hall->addSecondAddresses(second);
    return hall;
}

std::optional<HallDescription> hallFrom(const QCommandLineParser& parser, QString* error)
{
    const QStringList files = parser.positionalArguments();
    if (files.isEmpty()) {
        return hallByCounts(parser, error);
    }
    for (const char* option : {"hubs", "peripherals", "base", "second-addresses"}) {
        if (files.size() > 1 || parser.isSet(QLatin1String(option))) {
            *error = QStringLiteral("give one description file or counts, not both");
            return std::nullopt;
        }
    }
    const HallReading reading = readHallFile(files.front());
    *error = reading.error;
    return reading.hall;
}

void setUpHubs(const QCommandLineParser& parser, HallDescription& hall, QString* error)
{
    const QString polls = QStringLiteral("export-polls");
    const QString password = QStringLiteral("password");
    for (HubDescription& hub : hall.hubs) {
        if (parser.isSet(password)) {
            hub.password = parser.value(password);
        }
        if (parser.isSet(polls)) {
            hub.exportPolls = Numbers(parser, error).number(polls, HubDescription::maxExportPolls);
        }
    }
}

void setUpDiscovery(const QCommandLineParser& parser, HallDescription& hall)
{
    const QString listen = QStringLiteral("discovery-listen");
    hall.discovery =
        hall.discovery || parser.isSet(QStringLiteral("discovery")) || parser.isSet(listen);
    if (parser.isSet(listen)) {
        hall.discoveryListen = parser.value(listen);
    }
}

void addFaults(const QCommandLineParser& parser, HallDescription& hall, QString* error)
{
    for (const QString& text : parser.values(QStringLiteral("fault"))) {
        if (const std::optional<Fault> fault = faultFromText(text, error)) {
            hall.faults.append(*fault);
        }
    }
}

} // namespace

HallOptionsReading readHallOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    describe(parser);
    HallOptionsReading reading;
    if (!parser.parse(arguments)) {
        reading.error = parser.errorText();
        return reading;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        reading.help = parser.helpText() + faultHelp() + exitCodeHelp();
        return reading;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        reading.help = QStringLiteral("tessel-hall " TESSEL_VERSION "\n");
        return reading;
    }
    std::optional<HallDescription> hall = hallFrom(parser, &reading.error);
    if (hall) {
        setUpHubs(parser, *hall, &reading.error);
        setUpDiscovery(parser, *hall);
        addFaults(parser, *hall, &reading.error);
    }
    if (hall && reading.error.isEmpty()) {
        reading.error = hall->problem().value_or(QString());
    }
    if (hall && reading.error.isEmpty()) {
        reading.options = HallOptions{*hall, parser.value(QStringLiteral("store"))};
    }
    return reading;
}
