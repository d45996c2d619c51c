#pragma once

#include <QList>

class InstallDriver;

/// Holds the installations of a hall together: no hub gets files before every hub's log-in has been
/// answered, so that nothing is changed anywhere as long as the user may still think better of it.
class InstallBarrier
{
public:
    /// Adds the installation of one hub; `driver` is not owned and outlives the barrier's use.
    void add(InstallDriver* driver);

    /// Starts the transfers, unless a log-in is still to be answered. To be called whenever one was
    /// and whenever a run has ended: a hub that failed holds nobody back.
    void goOn() const;

private:
    QList<InstallDriver*> m_drivers;
};
