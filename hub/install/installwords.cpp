#include "installwords.h"

#include <QCoreApplication>

namespace {

QString words(const char* text)
{
    return QCoreApplication::translate("InstallWords", text);
}

} // namespace

QString requestWords(const InstallPlace& place)
{
    const QString layout = QString::number(place.presetNumber);
    switch (place.step) {
    case InstallStep::Status:
        return words("asking for the hub's state");
    case InstallStep::Token:
        return words("asking for leave to log in");
    case InstallStep::Validate:
        return words("setting the first password");
    case InstallStep::Authenticate:
        return words("logging in");
    case InstallStep::StartExport:
        return words("starting the export of the hub's configuration");
    case InstallStep::FetchExport:
        return words("fetching the export of the hub's configuration");
    case InstallStep::PresetEntry:
        return words("making the preset of layout %1").arg(layout);
    case InstallStep::HubFile:
        return words("storing the hub's own file for layout %1").arg(layout);
    case InstallStep::PeripheralFile:
        return words("storing the file of %1 for layout %2").arg(place.deviceAddress, layout);
    case InstallStep::Recall:
        return words("recalling the preset of layout 1");
    case InstallStep::Invalidate:
        return words("logging out");
    }
    return {};
}

QString troubleWords(const InstallOutcome& outcome)
{
    switch (outcome.trouble) {
    case InstallTrouble::None:
        return {};
    case InstallTrouble::OtherStatus:
        return outcome.status.isEmpty() ? words("the hub answered without a status")
                                        : words("the hub answered %1").arg(outcome.status);
    case InstallTrouble::NotConfirmed:
        return words("the hub answered, but did not do it");
    case InstallTrouble::ConnectionRefused:
        return words("the connection was refused");
    case InstallTrouble::Unreachable:
        return words("the hub's address cannot be reached");
    case InstallTrouble::ConnectionBroken:
        return words("the hub closed the connection before it had answered");
    case InstallTrouble::Silence:
        return words("no answer for 30 seconds");
    case InstallTrouble::Cancelled:
        return words("you cancelled the log-in");
    case InstallTrouble::MissingRecords:
        return words("what was entered for it is missing");
    }
    return {};
}

QString reasonWords(const InstallOutcome& outcome)
{
    const QString trouble = troubleWords(outcome);
    if (trouble.isEmpty()) {
        return {};
    }
    QString request = requestWords(outcome.place);
    request.front() = request.front().toUpper();
    return QStringLiteral("%1: %2").arg(request, trouble);
}

QString progressWords(const InstallProgress& progress)
{
    return progress.filesToStore == 0 ? QString()
                                      : words("%1 of %2 files stored")
                                            .arg(QString::number(progress.filesStored),
                                                 QString::number(progress.filesToStore));
}
