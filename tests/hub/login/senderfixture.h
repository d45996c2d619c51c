#pragma once

#include "fakepresets.h"
#include "hubscript.h"
#include "installpage.h"
#include "presetfilesender.h"
#include "promptwatcher.h"
#include "senderclock.h"

#include <QSignalSpy>

#include <memory>

/// A page with one sender, the hub that it installs into, and the person who answers its dialogs.
struct SenderFixture
{
    /// The password that is typed unless a test answers the dialogs itself.
    static QString password() { return QStringLiteral("Opensesame1"); }

    explicit SenderFixture(const QString& hubAddress);

    /// Starts and waits for the log-in.
    bool logIn();
    /// Waits for the log-in of a run that has been started.
    bool waitForLogIn();
    /// Waits until `finished` has been emitted `count` times in all.
    bool waitForOutcome(int count = 1);
    /// Starts, logs in, transfers, and waits for the outcome.
    bool install(int count = 1);

    /// The outcomes so far, as numbers with blanks between them.
    QString outcomes() const;
    /// The steps that the hub was asked for so far, as numbers with blanks between them.
    QString steps() const { return stepsOf(peer.requests()); }

    QString hub;
    HubScript script;
    ScriptedPeer peer;
    FakePresets doc;
    std::unique_ptr<InstallPage> page = std::make_unique<InstallPage>();
    PresetFileSender* sender = nullptr; ///< owned by the page
    std::unique_ptr<QSignalSpy> finished;
    PromptWatcher::Answer answer; ///< may be replaced by a test
    PromptWatcher watcher;
};
