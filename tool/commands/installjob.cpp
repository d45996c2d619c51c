#include "installjob.h"

#include "absentdevices.h"
#include "arguments.h"
#include "consent.h"
#include "hallfaults.h"
#include "hallfile.h"
#include "hallhubs.h"
#include "hallinstallation.h"
#include "httpconnection.h"
#include "installplan.h"
#include "installreport.h"
#include "installtalk.h"
#include "installwords.h"
#include "interruption.h"
#include "layoutrecall.h"
#include "networkoptions.h"
#include "networksearch.h"
#include "outputfile.h"
#include "passwordfile.h"
#include "passwordprompt.h"
#include "shellword.h"
#include "terminal.h"
#include "userpasswords.h"

#include <QEventLoop>

#include <algorithm>

namespace {

constexpr int recallWaitMs = 10000;
constexpr int firstLayout = 1;

/// The first of the addresses that none of the hubs has; empty when there is none.
QString strangerAmong(const QStringList& addresses, const QStringList& hubs)
{
    const auto stranger =
        std::find_if(addresses.begin(), addresses.end(),
                     [&hubs](const QString& address) { return !hubs.contains(address); });
    return stranger != addresses.end() ? *stranger : QString();
}

/// What the hall lacks for an installation of these hubs: it is walked before it begins, since half
/// of it would be worse than none.
QStringList missingRecords(HallDocument& hall, const QList<DeviceData>& hubs)
{
    QStringList lines;
    for (const DeviceData& hub : hubs) {
        const InstallOutcome planned = planInstallation(hub.ipAddress, hall).outcome;
        if (!planned.isInstalled) {
            lines.append(hubName(hub) + QStringLiteral(": ") + reasonWords(planned));
        }
    }
    return lines;
}

QString absenceWords(const AbsentDevice& absent)
{
    return QStringLiteral("%1, %2 in room %3: %4")
        .arg(hubName(absent.device), absent.device.modelName,
             QString::number(absent.device.roomNumber), absent.reason);
}

QString namesOf(const QList<DeviceData>& hubs)
{
    QStringList names;
    for (const DeviceData& hub : hubs) {
        names.append(hubName(hub));
    }
    return names.join(QStringLiteral(", "));
}

} // namespace

InstallJob::InstallJob(const Command* command, const Arguments* arguments, Terminal* terminal)
    : m_command(command)
    , m_arguments(arguments)
    , m_terminal(terminal)
    , m_path(arguments->operand(0))
    , m_log(given("log"))
{
}

InstallJob::~InstallJob()
{
    HttpConnection::writeTo(nullptr);
}

ExitCode InstallJob::run()
{
    for (const auto part : {&InstallJob::readWait, &InstallJob::readHall, &InstallJob::chooseHubs,
                            &InstallJob::judgeHall, &InstallJob::readPasswords,
                            &InstallJob::openLog, &InstallJob::findDevices}) {
        if (const Stop stopped = (this->*part)()) {
            return *stopped;
        }
    }
    install();
    tellOfLog();
    tendOthers();
    return m_code;
}

InstallJob::Stop InstallJob::readWait()
{
    const std::optional<int> waitMs = millisecondsOf(*m_arguments, QStringLiteral("wait"),
                                                     usualSearchMs, *m_command, *m_terminal);
    m_waitMs = waitMs.value_or(0);
    return waitMs ? Stop() : ExitCode::WrongUsage;
}

InstallJob::Stop InstallJob::readHall()
{
    HallReading reading = readHallFile(m_path);
    if (reading.hall == nullptr) {
        return stop(ExitCode::CouldNotBeTried, reading.fault);
    }
    m_hall = std::move(reading.hall);
    return {};
}

InstallJob::Stop InstallJob::chooseHubs()
{
    const QStringList chosen = m_arguments->values(QStringLiteral("hub"));
    const QList<DeviceData> placed = placedHubs(m_hall->data());
    const QString stranger = strangerAmong(chosen, addressesOf(placed));
    if (!stranger.isEmpty()) {
        return stop(
            ExitCode::WrongUsage,
            QStringLiteral("%1: %2 is no hub in a room of this hall").arg(m_path, stranger));
    }
    for (const DeviceData& hub : placed) {
        const bool isChosen = chosen.isEmpty() || chosen.contains(hub.ipAddress);
        (isChosen ? m_hubs : m_others).append(hub);
        m_names.insert(hub.ipAddress, hubName(hub));
    }
    return {};
}

InstallJob::Stop InstallJob::judgeHall()
{
    QStringList faults = hallFaults(*m_hall);
    if (m_hall->data().scenes.isEmpty()) {
        faults.append(QStringLiteral("there are no layouts"));
    }
    if (m_hubs.isEmpty()) {
        faults.append(QStringLiteral("there is no hub in any room"));
    }
    if (faults.isEmpty()) {
        faults = missingRecords(*m_hall, m_hubs);
    }
    for (const QString& fault : faults) {
        m_terminal->say(m_path + QStringLiteral(": ") + fault);
    }
    return faults.isEmpty() ? Stop() : ExitCode::SomethingIsNot;
}

InstallJob::Stop InstallJob::readPasswords()
{
    const QString path = given("passwords");
    const PasswordReading reading = path.isEmpty() ? PasswordReading() : readPasswordFile(path);
    m_passwords = reading.passwords;
    return reading.fault.isEmpty() ? Stop() : stop(ExitCode::CouldNotBeTried, reading.fault);
}

InstallJob::Stop InstallJob::openLog()
{
    const QString path = given("log");
    if (path.isEmpty()) {
        return {};
    }
    const QString misled = outputFault(path, {m_path, given("passwords")});
    if (!misled.isEmpty()) {
        return stop(ExitCode::WrongUsage, misled);
    }
    if (!m_log.open()) {
        return stop(ExitCode::CouldNotBeTried, path + QStringLiteral(": ") + m_log.error());
    }
    HttpConnection::writeTo(&m_log);
    return {};
}

InstallJob::Stop InstallJob::findDevices()
{
    if (m_arguments->has(QStringLiteral("no-search"))) {
        return {};
    }
    const SearchResult result = searchNetwork(given("interface"), m_waitMs, {}, *m_terminal);
    if (!result.fault.isEmpty()) {
        return stop(ExitCode::CouldNotBeTried, result.fault);
    }
    const QList<AbsentDevice> absent =
        absentDevices(m_hall->data(), result.devices, {*result.side.row});
    for (const AbsentDevice& device : absent) {
        m_terminal->say(m_path + QStringLiteral(": ") + absenceWords(device));
    }
    return absent.isEmpty()
               ? Stop()
               : stop(ExitCode::SomethingIsNot,
                      QStringLiteral("nothing was installed; \"replace\" is for a device that was "
                                     "exchanged, \"find --probe\" tells why one does not answer"));
}

void InstallJob::install()
{
    UserPasswords passwords(m_names, m_passwords, given("passwords"), m_terminal);
    HallInstallation installation(m_hall.get(), addressesOf(m_hubs), &passwords);
    InstallTalk talk(m_names, &installation, m_terminal);
    const Interruption interruption;
    QEventLoop untilFinished;
    // First of all, so that the question does not move below what is said.
    QObject::connect(&interruption, SIGNAL(interrupted()), &passwords, SLOT(stop()));
    QObject::connect(&interruption, SIGNAL(interrupted()), &talk, SLOT(sayInterruption()));
    QObject::connect(&interruption, SIGNAL(interrupted()), &installation, SLOT(breakOff()));
    QObject::connect(&installation, SIGNAL(finished()), &untilFinished, SLOT(quit()));
    talk.sayBegin();
    installation.start();
    untilFinished.exec();
    talk.end();
    report(installation);
}

void InstallJob::report(const HallInstallation& installation)
{
    if (m_arguments->has(QStringLiteral("json"))) {
        m_terminal->write(installObject(m_hubs, installation));
    } else {
        m_terminal->write(installTable(m_hubs, installation));
    }
    for (const DeviceData& hub : m_hubs) {
        const InstallOutcome& outcome = installation.outcome(hub.ipAddress);
        const bool isRecalled = outcome.trouble == InstallTrouble::None;
        if (!outcome.isInstalled || !isRecalled) {
            m_code = ExitCode::SomethingIsNot;
        }
        m_hasInstalled = m_hasInstalled || outcome.isInstalled;
        m_hasRecalled = m_hasRecalled && (!outcome.isInstalled || isRecalled);
    }
    m_isBrokenOff = installation.isBrokenOff();
}

/// A log that is wanted for a proof and is cut must not pass for a whole one.
void InstallJob::tellOfLog()
{
    if (!m_log.isWhole()) {
        m_terminal->say(
            QStringLiteral("%1: it is not complete: %2").arg(given("log"), m_log.error()));
        m_code = m_code == ExitCode::AllIsWell ? ExitCode::CouldNotBeTried : m_code;
    }
}

/// The hubs that were installed are on the first layout now, whatever the others are on.
void InstallJob::tendOthers()
{
    if (m_others.isEmpty() || !m_hasInstalled) {
        return;
    }
    const QString state = m_hasRecalled
                              ? QStringLiteral("what was installed is on layout %1 now")
                              : QStringLiteral("what was installed was told to recall layout %1");
    m_terminal->say((state + QStringLiteral("; these hubs may be on another one: %2"))
                        .arg(QString::number(firstLayout), namesOf(m_others)));
    if (m_isBrokenOff || !m_terminal->isWatched() || !PasswordPrompt().isPossible()) {
        sayHowToRecall();
    } else {
        offerRecall();
    }
}

void InstallJob::offerRecall()
{
    const QString question =
        QStringLiteral("Recall layout %1 on all hubs now? (y/N)").arg(firstLayout);
    switch (askForConsent(question, *m_terminal)) {
    case Consent::Given:
        recallFirst();
        break;
    case Consent::Interrupted:
        sayHowToRecall();
        m_code = m_code == ExitCode::AllIsWell ? ExitCode::CouldNotBeTried : m_code;
        break;
    case Consent::Refused:
        break;
    }
}

void InstallJob::sayHowToRecall()
{
    m_terminal->say(QStringLiteral("all hubs on one layout: tesselctl recall %1 %2")
                        .arg(QString::number(firstLayout), shellWord(m_path)));
}

void InstallJob::recallFirst()
{
    const std::optional<LayoutRecall> recall =
        recallLayout(firstLayout, placedHubs(m_hall->data()), recallWaitMs);
    const QStringList faults = recall ? recallFaults(*recall) : QStringList{silenceWords()};
    m_terminal->say(faults);
    if (faults.isEmpty()) {
        m_terminal->say(QStringLiteral("layout %1 is active on all hubs").arg(firstLayout));
    } else {
        m_code = ExitCode::SomethingIsNot;
    }
}

QString InstallJob::given(const char* option) const
{
    return m_arguments->value(QLatin1String(option));
}

InstallJob::Stop InstallJob::stop(ExitCode code, const QString& reason) const
{
    m_terminal->say(reason);
    return code;
}
