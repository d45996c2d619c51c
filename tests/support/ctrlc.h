#pragma once

class QProcess;

/// Tells a running program what Ctrl+C tells it. On Windows the program has to have been started by
/// startWithConsole().
void pressCtrlC(const QProcess& program);

/// Starts a program, by the command that was set. On Windows it gets a console of its own that
/// nobody sees: what is pressed in a console reaches all programs that share it.
void startWithConsole(QProcess& program);
