#include "networkrun.h"

#include <QJsonDocument>
#include <QProcess>
#include <QTemporaryFile>

namespace {

constexpr int patience = 60000; // milliseconds
constexpr int refused = 77;

const QString script = QStringLiteral(TESSEL_WITH_NETWORK);

/// The signal that ends the hall comes to the script that watches over it; the hall gets it too.
QStringList arguments(const QString& description, const QString& command)
{
    return {QStringLiteral("--ready"),
            QStringLiteral("Ctrl+C closes the hall"),
            QStringLiteral(TESSEL_HALL_PROGRAM),
            description,
            QStringLiteral("--"),
            QStringLiteral("sh"),
            QStringLiteral("-c"),
            QStringLiteral("tesselctl() { '" TESSEL_TOOL "' \"$@\"; }; ") + command};
}

} // namespace

QJsonObject NetworkRun::object() const
{
    return QJsonDocument::fromJson(output.toUtf8()).object();
}

bool hasNetwork(QString* reason)
{
    QProcess process;
    process.start(script, {QStringLiteral("echo"), QStringLiteral("ready"), QStringLiteral("--"),
                           QStringLiteral("true")});
    process.waitForFinished(patience);
    *reason = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode() != refused;
}

NetworkRun runBesideHall(const QByteArray& description, const QString& command)
{
    QTemporaryFile file;
    if (!file.open() || file.write(description) != description.size() || !file.flush()) {
        return {};
    }
    QProcess process;
    process.start(script, arguments(file.fileName(), command));
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished();
        return {};
    }
    NetworkRun run;
    run.exitCode = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    run.output = QString::fromUtf8(process.readAllStandardOutput());
    run.errors = QString::fromUtf8(process.readAllStandardError());
    run.hall = run.errors.section(QStringLiteral("The hall is closed."), 1);
    return run;
}
