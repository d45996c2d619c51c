#pragma once

#include "testcase.h"

/// The run that is searched for secrets: an installation in three hubs with known passwords, typed
/// into the real dialogs; saving, and resuming. It leaves and prints what a user's run would, and
/// what the simulated hall does.
///
/// Everything is left below HOME.
class SecretRun : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void installsSavesAndResumes();
};

/// The passwords that are typed: a wrong one and the right one of the first hub, and the first
/// password of the second. The third hub's dialog is cancelled.
extern const char* const wrongPassword;
extern const char* const rightPassword;
extern const char* const firstPassword;
