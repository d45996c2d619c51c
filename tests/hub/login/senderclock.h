#pragma once

class QObject;

/// Lets the seconds of a sender's time-out pass.
void passSeconds(QObject* sender, int seconds);

/// Whether a sender's clock runs.
bool isClockRunning(QObject* sender);
