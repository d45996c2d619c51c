#pragma once

#include "command.h"
#include "documentdata.h"
#include "exchangelog.h"

#include <QHash>

#include <memory>
#include <optional>

class HallDocument;
class HallInstallation;

/// One run of `install`: everything that is asked before the first request, the installation, and
/// what is said of it.
class InstallJob
{
public:
    /// None is owned; all outlive it.
    InstallJob(const Command* command, const Arguments* arguments, Terminal* terminal);
    ~InstallJob();
    Q_DISABLE_COPY_MOVE(InstallJob)

    ExitCode run();

private:
    /// Why it ends here, which is said; nothing when it goes on.
    using Stop = std::optional<ExitCode>;

    Stop readWait();
    Stop readHall();
    Stop chooseHubs();
    Stop judgeHall();
    Stop readPasswords();
    Stop openLog();
    Stop findDevices();
    void install();
    void tendOthers();

    void report(const HallInstallation& installation);
    void tellOfLog();
    void offerRecall();
    void sayHowToRecall();
    void recallFirst();
    QString given(const char* option) const;
    Stop stop(ExitCode code, const QString& reason) const;

    const Command* m_command;
    const Arguments* m_arguments;
    Terminal* m_terminal;
    QString m_path;
    int m_waitMs = 0; ///< of the search
    std::unique_ptr<HallDocument> m_hall;
    QList<DeviceData> m_hubs;   ///< that are installed
    QList<DeviceData> m_others; ///< that are left as they are
    QHash<QString, QString> m_names;
    QHash<QString, QString> m_passwords; ///< of the file, by address
    ExchangeLog m_log;
    bool m_hasInstalled = false; ///< at least one hub
    bool m_hasRecalled = true;   ///< all hubs that were installed did
    bool m_isBrokenOff = false;
    ExitCode m_code = ExitCode::AllIsWell;
};
