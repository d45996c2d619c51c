#include "networksearch.h"

#include "foreignaddress.h"
#include "interruption.h"
#include "terminal.h"

#include <QEventLoop>

#include <algorithm>

namespace {

/// What a device told about itself without being judged; model and MAC stand in queries only.
QString toldByText(const Probe& probe)
{
    return QStringLiteral("answers text commands only, not judged: label %1, firmware %2, serial "
                          "number %3")
        .arg(probe.label, probe.version, probe.serialNumber);
}

/// How the address behaved, wherever it lies.
QString resultWords(const Probe& probe)
{
    switch (probe.result) {
    case ProbeResult::Answers:
        return QStringLiteral("answers the search");
    case ProbeResult::DirectOnly:
        return QStringLiteral("answers only when asked directly: broadcasts are lost on the way");
    case ProbeResult::TextOnly:
        return toldByText(probe);
    case ProbeResult::RefusesText:
        return QStringLiteral("refuses: something is there, but no device of a conference system");
    case ProbeResult::Silent:
        break;
    }
    return QStringLiteral("silent: nobody is there, or nothing gets through");
}

} // namespace

SearchResult searchNetwork(const QString& interfaceName, int waitMs, const QStringList& probes,
                           Terminal& terminal)
{
    const InterfaceChoice side = chooseInterface(systemInterfaces(), interfaceName);
    if (!side.row) {
        return {side.fault, {}, side};
    }
    HallSearch search(side.row->index, waitMs, probes);
    QEventLoop untilFinished;
    QObject::connect(&search, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    const Interruption interruption;
    QObject::connect(&interruption, SIGNAL(interrupted()), &untilFinished, SLOT(quit()));
    if (!search.start()) {
        return {QStringLiteral("UDP port %1 of %2 is in use: is the wizard or another search open "
                               "on this computer?")
                    .arg(QString::number(DeviceDetector::port), side.row->address),
                {},
                side};
    }
    if (terminal.isWatched()) {
        terminal.say(QStringLiteral("searching on %1 (%2)").arg(side.row->name, side.row->address));
    }
    const QDateTime begun = QDateTime::currentDateTime();
    untilFinished.exec();
    if (interruption.hasCome()) {
        return {.fault = QStringLiteral("the search was interrupted"),
                .side = side,
                .isInterrupted = true};
    }
    return {{}, begun, side, search.devices(), search.probes()};
}

const JudgedDevice* answerFrom(const QString& address, const QList<JudgedDevice>& devices)
{
    const auto found =
        std::find_if(devices.begin(), devices.end(), [&address](const JudgedDevice& device) {
            return device.record.ipAddress == address;
        });
    return found != devices.end() ? &*found : nullptr;
}

QString probeWords(const Probe& probe, const InterfaceChoice& side)
{
    const QString foreign = probe.result != ProbeResult::Answers && side.row
                                ? foreignWords(probe.address, {*side.row})
                                : QString();
    const QString result = resultWords(probe);
    return foreign.isEmpty() ? result : result + QStringLiteral("; ") + foreign;
}
