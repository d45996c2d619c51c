#pragma once

/// The requests of an installation, in the order in which they are sent. The number of a step
/// stands in the debug lines.
enum class InstallStep
{
    Status = 0,         ///< has the hub a password?
    Token = 1,          ///< a token under which the log-in is allowed
    Validate = 2,       ///< gives the hub its first password
    Authenticate = 3,   ///< logs in
    StartExport = 4,    ///< has the hub export its own configuration
    FetchExport = 5,    ///< asks for the export, again and again until it is ready
    PresetEntry = 6,    ///< makes a preset
    HubFile = 7,        ///< the hub's own file of the preset
    PeripheralFile = 8, ///< the file of one device placed with the hub
    Recall = 9,         ///< makes the first preset the current one
    Invalidate = 10     ///< gives the token back
};

/// The number of steps.
inline constexpr int installStepCount = int(InstallStep::Invalidate) + 1;

/// What is to be done after a reply.
enum class InstallMove
{
    Send,               ///< send the request of the step that the run has moved to
    SendAfterPause,     ///< the same, but give the hub a second first
    AskInitialPassword, ///< ask for the hub's first password
    AskPassword,        ///< ask for the password
    AskPasswordAgain,   ///< ask once more and say that it was wrong
    EndLogIn,           ///< logged in: wait for the other hubs
    SendAfterRefusal,   ///< report that the recall was refused, yet send the step's request
    EndInSuccess,       ///< everything is installed
    EndByStatus,        ///< the run is over: the hub answered with another status than "200"
    EndUnconfirmed,     ///< the run is over: the hub did not do what it was asked for
    EndForLackOfRecords ///< the run is over: the document lacks what the next request needs
};
