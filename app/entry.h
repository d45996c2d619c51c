#pragma once

/// Runs the wizard from the command line to the closing of its window and returns the program's
/// exit code; tells on standard error which arguments it ignores. `argc` and `argv` stay valid and
/// unchanged for as long as it runs.
int runWizard(int& argc, char** argv);
