#include "installwords.h"

#include <QCoreApplication>

namespace {

/// Gives the texts their context, where extraction tools find it too.
struct InstallWords
{
    Q_DECLARE_TR_FUNCTIONS(InstallWords)
};

} // namespace

QString requestWords(const InstallPlace& place)
{
    const QString layout = QString::number(place.presetNumber);
    switch (place.step) {
    case InstallStep::Status:
        return InstallWords::tr("asking for the hub's state");
    case InstallStep::Token:
        return InstallWords::tr("asking for leave to log in");
    case InstallStep::Validate:
        return InstallWords::tr("setting the first password");
    case InstallStep::Authenticate:
        return InstallWords::tr("logging in");
    case InstallStep::StartExport:
        return InstallWords::tr("starting the export of the hub's configuration");
    case InstallStep::FetchExport:
        return InstallWords::tr("fetching the export of the hub's configuration");
    case InstallStep::PresetEntry:
        return InstallWords::tr("making the preset of layout %1").arg(layout);
    case InstallStep::HubFile:
        return InstallWords::tr("storing the hub's own file for layout %1").arg(layout);
    case InstallStep::PeripheralFile:
        return InstallWords::tr("storing the file of %1 for layout %2")
            .arg(place.deviceAddress, layout);
    case InstallStep::Recall:
        return InstallWords::tr("recalling the preset of layout 1");
    case InstallStep::Invalidate:
        return InstallWords::tr("logging out");
    }
    return {};
}

QString troubleWords(const InstallOutcome& outcome)
{
    switch (outcome.trouble) {
    case InstallTrouble::None:
        return {};
    case InstallTrouble::OtherStatus:
        return outcome.status.isEmpty()
                   ? InstallWords::tr("the hub answered without a status")
                   : InstallWords::tr("the hub answered %1").arg(outcome.status);
    case InstallTrouble::NotConfirmed:
        return InstallWords::tr("the hub answered, but did not do it");
    case InstallTrouble::ConnectionRefused:
        return InstallWords::tr("the connection was refused");
    case InstallTrouble::Unreachable:
        return InstallWords::tr("the hub's address cannot be reached");
    case InstallTrouble::ConnectionBroken:
        return InstallWords::tr("the hub closed the connection before it had answered");
    case InstallTrouble::Silence:
        return InstallWords::tr("no answer for 30 seconds");
    case InstallTrouble::Cancelled:
        return InstallWords::tr("you cancelled the log-in");
    case InstallTrouble::BrokenOff:
        return InstallWords::tr("it was broken off and is not finished");
    case InstallTrouble::MissingRecords:
        return InstallWords::tr("what was entered for it is missing");
    }
    return {};
}

QString reasonWords(const InstallOutcome& outcome)
{
    const QString trouble = troubleWords(outcome);
    return trouble.isEmpty() ? QString() : reasonWords(outcome.place, trouble);
}

QString reasonWords(const InstallPlace& place, const QString& trouble)
{
    QString request = requestWords(place);
    request.front() = request.front().toUpper();
    return QStringLiteral("%1: %2").arg(request, trouble);
}

QString progressWords(const InstallProgress& progress)
{
    return progress.filesToStore == 0 ? QString()
                                      : InstallWords::tr("%1 of %2 files stored")
                                            .arg(QString::number(progress.filesStored),
                                                 QString::number(progress.filesToStore));
}
