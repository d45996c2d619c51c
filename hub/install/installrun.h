#pragma once

#include "installoutcome.h"
#include "installstep.h"

#include <QString>
#include <QStringList>

#include <optional>

class IDocAccessor;

/// What an installation says to one hub and what it makes of the answers: eleven steps, of which
/// the middle ones repeat for every preset and every device. It knows neither sockets nor time nor
/// dialogs; whoever drives it sends request(), hands the reply to evaluate(), and does what the
/// move says.
class InstallRun
{
public:
    /// `doc` is not owned and must outlive the run.
    InstallRun(const QString& ipAddress, IDocAccessor* doc);

    /// Begins anew at step Status. What the hub last said about having a password is kept.
    void begin();

    /// Goes on at step StartExport, after a log-in.
    void beginTransfer();

    InstallStep step() const { return m_step; }

    /// The request of the current step.
    InstallPlace place() const;

    /// How many of the files that it holds, hub's and devices', the hub has taken.
    InstallProgress progress() const { return m_progress; }

    /// The password that the user typed, for the next request. Only its digest is kept, and only
    /// until that request has been built.
    void setPassword(const QString& password);

    /// The request text of the current step; nothing when the document lacks what it needs. Notes
    /// in the debug output which preset or device it is for.
    std::optional<QString> request();

    /// Judges the reply to the current step's request and moves to the step that follows.
    InstallMove evaluate(const QString& reply);

private:
    using Request = std::optional<QString>;

    struct Row
    {
        InstallStep step; ///< whose row it is
        Request (InstallRun::*request)();
        InstallMove (InstallRun::*onSuccess)(const QString& reply);
        InstallMove otherwise; ///< on every status but "200"
    };
    static const Row& rowOf(InstallStep step);

    Request statusRequest();
    Request tokenRequest();
    Request validateRequest();
    Request authenticateRequest();
    Request startExportRequest();
    Request fetchExportRequest();
    Request presetEntryRequest();
    Request hubFileRequest();
    Request peripheralFileRequest();
    Request recallRequest();
    Request invalidateRequest();

    InstallMove afterStatus(const QString& reply);
    InstallMove afterToken(const QString& reply);
    InstallMove afterValidate(const QString& reply);
    InstallMove afterAuthenticate(const QString& reply);
    InstallMove afterStartExport(const QString& reply);
    InstallMove afterFetchExport(const QString& reply);
    InstallMove afterPresetEntry(const QString& reply);
    InstallMove afterHubFile(const QString& reply);
    InstallMove afterPeripheralFile(const QString& reply);
    InstallMove afterRecall(const QString& reply);
    InstallMove afterInvalidate(const QString& reply);

    InstallMove goTo(InstallStep step, InstallMove move = InstallMove::Send);
    InstallMove goToNextPreset();
    int filesOfAllPresets() const;
    void countFile();
    QString takeDigest();
    QString logPrefix() const;

    QString m_ipAddress;
    IDocAccessor* m_doc;
    InstallStep m_step = InstallStep::Status;
    QString m_token;
    QString m_digest;
    int m_hubInitialized = 0; ///< 0 or 1, as the hub last said
    QString m_storageName;
    InstallProgress m_progress;
    int m_presetCount = 0;
    int m_presetNumber = 1;
    QStringList m_devices; ///< placed with the hub in the current preset
    qsizetype m_deviceIndex = 0;
};
