#pragma once

#include "installbarrier.h"
#include "installoutcome.h"

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

class IDocAccessor;
class InstallDriver;
class PasswordSource;

/// The installation of the hubs of a hall, all at once: the wizard's step without its page. The
/// same driver does the work, and the same barrier holds back the transfers until every log-in has
/// been answered.
class HallInstallation : public QObject
{
    Q_OBJECT

public:
    /// Installs what is in `doc` on the hubs of these addresses, which are all different. Neither
    /// `doc` nor `passwords` is owned; both outlive it.
    HallInstallation(IDocAccessor* doc, const QStringList& hubs, PasswordSource* passwords,
                     QObject* parent = nullptr);

    /// Begins; another time it installs all hubs again.
    void start();

    const QStringList& hubs() const { return m_hubs; }

    /// Whether a hub is still being installed.
    bool isRunning(const QString& hub) const;

    /// How the installation of a hub ended.
    const InstallOutcome& outcome(const QString& hub) const;

    /// Why a hub is not installed, or what it refused although it is; empty when all is well.
    /// Unlike the outcome it says why no password was told.
    QString reason(const QString& hub) const;

    /// Whether the last run was broken off.
    bool isBrokenOff() const { return m_isBrokenOff; }

    InstallProgress progress(const QString& hub) const;

public Q_SLOTS:
    /// Ends what is still under way: these hubs are not finished.
    void breakOff();

Q_SIGNALS:
    /// progress() of a hub has changed.
    void progressed();
    void hubEnded(const QString& hub);
    /// Every hub has ended. Emitted once for each start.
    void finished();

private Q_SLOTS:
    void askFirstPassword();
    void askPassword(bool wasRefused);
    void submit(const QString& hub, const QString& password);
    void cancel(const QString& hub, const QString& reason);
    void goOn();
    void noteEnd();

private:
    QString hubOfSender() const;
    bool isAnyRunning() const;

    QStringList m_hubs;
    PasswordSource* m_passwords;
    QHash<QString, InstallDriver*> m_drivers; ///< by address; children
    InstallBarrier m_barrier;
    QSet<QString> m_gotFirst;           ///< hubs that were told a first password in this run
    QHash<QString, QString> m_withheld; ///< by address: why no password was told
    bool m_isBrokenOff = false;
    bool m_isFinished = true;
};
