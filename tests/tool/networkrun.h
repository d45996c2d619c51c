#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QStringList>

/// What came of a run of the built tool on the other end of a cable to a hall.
struct NetworkRun
{
    int exitCode = -1;
    QString output;
    QString errors; ///< what the hall's end says stands among it
    QString hall;   ///< what the hall said when it had closed, a part of `errors`

    /// The output as the one object that it is.
    QJsonObject object() const;
};

/// True when this system allows a test to make such a network; told in `reason` when not.
bool hasNetwork(QString* reason);

/// Opens the simulated hall of this description (JSON) on one end, and runs a shell's command on
/// the other, where "tesselctl" is the built tool.
NetworkRun runBesideHall(const QByteArray& description, const QString& command);
