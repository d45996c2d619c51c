#include "walkcommand.h"

#include "arguments.h"
#include "consent.h"
#include "foreignaddress.h"
#include "hallfile.h"
#include "hallhubs.h"
#include "interruption.h"
#include "networkoptions.h"
#include "outputfile.h"
#include "terminal.h"
#include "walkprogress.h"
#include "walkreport.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QSaveFile>

namespace {

constexpr int usualWaitMs = 10000;
constexpr int usualSettleMs = 2000;

struct Pace
{
    int settleMs = 0;
    int waitMs = 0;
};

std::optional<Pace> paceOf(const Arguments& arguments, const Command& command, Terminal& terminal)
{
    const std::optional<int> settleMs =
        millisecondsOf(arguments, QStringLiteral("settle"), usualSettleMs, command, terminal);
    const std::optional<int> waitMs =
        settleMs ? millisecondsOf(arguments, QStringLiteral("wait"), usualWaitMs, command, terminal)
                 : std::nullopt;
    return waitMs ? std::optional(Pace{*settleMs, *waitMs}) : std::nullopt;
}

/// Why there is nothing to walk through; empty when there is.
QString emptiness(const QString& file, const DocumentData& hall)
{
    if (hall.scenes.isEmpty()) {
        return QStringLiteral("%1: it has no layouts").arg(file);
    }
    return placedHubs(hall).isEmpty() ? QStringLiteral("%1: no hub stands in a room").arg(file)
                                      : QString();
}

void sayWhatWillBeHeard(const DocumentData& hall, Terminal& terminal)
{
    terminal.say(
        QStringLiteral("%1 layouts will be recalled on %2 hubs, one after the other. Whoever is in "
                       "the hall hears it: microphones and loudspeakers switch to other rooms, and "
                       "the sound is interrupted.")
            .arg(QString::number(hall.scenes.size()), QString::number(placedHubs(hall).size())));
}

/// The layouts' numbers in their order.
QList<int> numbersOf(const QList<SceneInfo>& layouts)
{
    QList<int> numbers;
    for (const SceneInfo& layout : layouts) {
        numbers.append(layout.number);
    }
    return numbers;
}

void walkToTheEnd(HallWalk& walk, WalkProgress& progress)
{
    const Interruption interruption;
    QEventLoop untilFinished;
    QObject::connect(&walk, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    QObject::connect(&walk, SIGNAL(walked(int)), &progress, SLOT(sayLayout(int)));
    QObject::connect(&interruption, SIGNAL(interrupted()), &progress, SLOT(sayInterruption()));
    QObject::connect(&interruption, SIGNAL(interrupted()), &walk, SLOT(stop()));
    walk.start();
    untilFinished.exec();
}

/// Says why no layout was recalled. There is no table of what was never tried.
ExitCode reportNothing(const WalkResult& result, bool isForPrograms, Terminal& terminal)
{
    if (isForPrograms) {
        terminal.write(walkObject(result));
    }
    terminal.say(result.walk.isStopped() ? QStringLiteral("nothing was recalled") : silenceWords());
    return ExitCode::CouldNotBeTried;
}

/// Writes what is known, and says what is not as it should be.
ExitCode report(const WalkResult& result, bool isForPrograms, Terminal& terminal)
{
    if (!result.walk.hasRecalled()) {
        return reportNothing(result, isForPrograms, terminal);
    }
    if (isForPrograms) {
        terminal.write(walkObject(result));
    } else {
        terminal.write(walkTable(result));
    }
    terminal.say(restoreNotes(result) + restoreFaults(result));
    return isWalkRight(result) ? ExitCode::AllIsWell : ExitCode::SomethingIsNot;
}

ExitCode walkThrough(const DocumentData& hall, const Arguments& arguments, Pace pace,
                     Terminal& terminal)
{
    const std::optional<QList<NicRow>> sides = hubSides(arguments, terminal);
    if (!sides) {
        return ExitCode::CouldNotBeTried;
    }
    // Opened first: nobody should hear a walk whose result cannot be kept.
    QSaveFile kept(arguments.value(QStringLiteral("o")));
    const bool isKept = arguments.has(QStringLiteral("o"));
    if (isKept && !kept.open(QIODevice::WriteOnly)) {
        terminal.say(writeFault(kept));
        return ExitCode::CouldNotBeTried;
    }
    sayWhatWillBeHeard(hall, terminal);
    if (!arguments.has(QStringLiteral("yes")) &&
        askForConsent(QStringLiteral("Begin? (y/N)"), terminal) != Consent::Given) {
        terminal.say(QStringLiteral("nothing was recalled"));
        return ExitCode::CouldNotBeTried;
    }
    const QList<DeviceData> hubs = placedHubs(hall);
    HallWalk walk(addressesOf(hubs), numbersOf(hall.scenes), pace.settleMs, pace.waitMs);
    const WalkResult result{hubs, hall.scenes, QDateTime::currentDateTime(), walk};
    WalkProgress progress(&result, &terminal);
    walkToTheEnd(walk, progress);
    const ExitCode code = report(result, arguments.has(QStringLiteral("json")), terminal);
    terminal.say(foreignWords(silentHubs(result), *sides));
    const QString unwritten =
        isKept ? writeWhole(kept, QJsonDocument(walkObject(result)).toJson()) : QString();
    if (!unwritten.isEmpty()) {
        terminal.say(unwritten);
        return ExitCode::CouldNotBeTried;
    }
    return code;
}

} // namespace

QString WalkCommand::name() const
{
    return QStringLiteral("walk");
}

QString WalkCommand::summary() const
{
    return QStringLiteral("Proves that every layout recalls on every hub");
}

QString WalkCommand::details() const
{
    return QStringLiteral(
        "Each layout is recalled on all hubs that stand in a room, and each hub is then asked "
        "which preset is active. Only what it answers counts.\n"
        "Whoever is in the hall hears it, so it asks before it begins. Afterwards the preset that "
        "was active before is recalled again, also when the walk is interrupted with Ctrl+C or the "
        "terminal is closed; a second Ctrl+C leaves at once.");
}

CommandSyntax WalkCommand::syntax() const
{
    return {{{QStringLiteral("FILE"), QStringLiteral("the configuration file")}},
            {{{QStringLiteral("yes")}, QStringLiteral("begins without asking")},
             hubInterfaceOption(),
             secondsOption(QStringLiteral("settle"),
                           QStringLiteral("how long a layout is left alone before it is read back "
                                          "(2)")),
             secondsOption(QStringLiteral("wait"),
                           QStringLiteral("how long each hub then has to be there (10)")),
             {{QStringLiteral("o")},
              QStringLiteral("keeps the result, as JSON"),
              QStringLiteral("RESULT.json")},
             {{QStringLiteral("json")}, QStringLiteral("writes JSON instead of a table")}}};
}

ExitCode WalkCommand::run(const Arguments& arguments, Terminal& terminal) const
{
    const std::optional<Pace> pace = paceOf(arguments, *this, terminal);
    if (!pace) {
        return ExitCode::WrongUsage;
    }
    const QString file = arguments.operand(0);
    const QString misled = outputFault(arguments.value(QStringLiteral("o")), {file});
    if (!misled.isEmpty()) {
        terminal.say(misled);
        return ExitCode::WrongUsage;
    }
    const HallReading reading = readHallFile(file);
    const QString fault =
        reading.hall == nullptr ? reading.fault : emptiness(file, reading.hall->data());
    if (!fault.isEmpty()) {
        terminal.say(fault);
        return ExitCode::CouldNotBeTried;
    }
    return walkThrough(reading.hall->data(), arguments, *pace, terminal);
}
