#pragma once

#include "installoutcome.h"
#include "installrun.h"

#include <QBasicTimer>
#include <QObject>

#include <chrono>

class HttpConnection;
class IDocAccessor;

/// Drives the installation of the presets on one hub, without a face of its own.
///
/// A run has two halves. start() connects and asks for the hub's password by a signal; whoever
/// shows the run to the user answers with submitPassword() or cancelLogIn(). Once logged in the
/// run waits until sendPresets(), so that no hub is changed before the user has answered for every
/// hub. sendPresets() transfers everything. A run that fails, is cancelled or hears nothing for
/// half a minute ends at once; the driver is then idle and start() begins anew.
///
/// It keeps the time and does what InstallRun says; what is said to the hub and what its answers
/// mean is up to that. Nothing in it blocks, and all that waits ends with the run.
class InstallDriver : public QObject
{
    Q_OBJECT

public:
    /// `doc` is not owned and must outlive the driver.
    InstallDriver(const QString& ipAddress, IDocAccessor* doc, QObject* parent);

    /// Begins a run. An earlier one that is still under way is dropped without an outcome of its
    /// own; but while isAskingUser() nothing happens, and that run goes on.
    void start();

    /// Answers firstPasswordWanted() or passwordWanted(). Only the password's digest is kept, until
    /// the request that needs it is built. Does nothing when no password is wanted.
    void submitPassword(const QString& password);

    /// The other answer: the run ends. Does nothing when no password is wanted.
    void cancelLogIn();

    /// Breaks a run off, wherever it is, and the connection with it; what the hub holds by then it
    /// keeps. Does nothing when none is under way.
    void breakOff();

    /// Goes on with the transfer. Does nothing unless the run is waiting for it.
    void sendPresets();

    /// Which password the run needs: the hub's first one, or that which it has.
    bool wantsFirstPassword() const { return m_run.step() == InstallStep::Validate; }

    /// What the hub answered to the password that it did not take, such as "401 Unauthorized".
    const QString& refusal() const { return m_refusal; }

    bool isAskingUser() const { return m_state == State::AskingUser; }

    /// True from a successful log-in to the next start().
    bool isLoggedIn() const { return m_isLoggedIn; }

    /// True from start() until the run has ended, however it ended.
    bool isRunning() const { return m_state != State::Idle; }

    /// How the last run went. Until it has ended nothing is installed, and the only trouble that
    /// there can be is the refused recall.
    const InstallOutcome& outcome() const { return m_outcome; }

    /// How far the transfer of the present or last run is.
    InstallProgress progress() const { return m_run.progress(); }

Q_SIGNALS:
    /// The hub has no password yet, or did not take the one that was submitted.
    void firstPasswordWanted();

    /// The hub wants its password. `wasRefused` says that the one submitted was not taken; see
    /// refusal().
    void passwordWanted(bool wasRefused);

    /// The hub has accepted the password.
    void loggedIn();

    /// Another file was stored, or the number of all of them became known; see progress().
    void progressed();

    /// The hub does not make preset 1 the current one. The run goes on all the same, and its
    /// outcome will name this trouble unless a worse one follows.
    void recallRefused();

    /// The run has ended, see outcome(); emitted once per run. A receiver must not destroy the
    /// driver, but may start it again.
    void ended();

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void noteArrival();
    void evaluate(const QString& reply);

private:
    enum class State
    {
        Idle,
        AwaitingReply,
        AskingUser, ///< time does not count, and the hub has nothing to say
        LoggedIn    ///< waiting for sendPresets()
    };

    void startCountdown();
    void send(std::chrono::milliseconds pause = {});
    void carryOut(InstallMove move, const QString& reply);
    void ask(bool wasRefused);
    void endLogIn();
    void tellProgress(InstallProgress before);
    void noteRefusedRecall();
    void succeed();
    void fail(InstallTrouble trouble, const QString& status = QString());
    void end(const InstallOutcome& outcome);
    InstallTrouble troubleOfSilence() const;

    QString m_ipAddress;
    InstallRun m_run;
    HttpConnection* m_connection;
    State m_state = State::Idle;
    bool m_isLoggedIn = false;
    QString m_refusal;
    InstallOutcome m_outcome;
    QBasicTimer m_ticks;
    int m_secondsLeft = 0;
};
