#pragma once

class QObject;

/// Lets the seconds pass of the time-out of a sender, or of a driver.
void passSeconds(QObject* sender, int seconds);

/// Whether the clock of a sender, or of a driver, runs.
bool isClockRunning(QObject* sender);
