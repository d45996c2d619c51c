#pragma once

#include "demoscenario.h"

#include <QDir>

/// Compares what the hubs hold, as the hall wrote it down, with what the user entered.
class HubCheck
{
public:
    /// `store` is the folder that the hall wrote: one folder per hub address, in it one per preset.
    HubCheck(const DemoScenario& scenario, const QString& store);

    /// What differs at this hub, one line each; empty when it holds exactly the right files.
    QStringList differences(const DemoDevice& hub);

private:
    void checkState(const DemoDevice& hub);
    void checkPreset(const DemoDevice& hub, int layout);
    void checkEntry(const QDir& folder, const QString& name, int number);
    void checkHubFile(const DemoDevice& hub, int layout, const QByteArray& text);
    void checkPeripheralFile(const DemoDevice& device, const QByteArray& text);
    void differ(const QString& what);

    const DemoScenario& m_scenario;
    QDir m_store;
    QString m_where;
    QStringList m_differences;
};
