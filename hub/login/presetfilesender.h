#pragma once

#include "installrun.h"

#include <QBasicTimer>
#include <QObject>
#include <QPointer>

#include <memory>

class HubDialog;
class IDocAccessor;
class InitialPasswordDialog;
class LoginDialog;
class QTcpSocket;
class QWidget;
class ReplyReader;

/// Installs the wizard's presets on one hub.
///
/// A run has two halves. start() connects, asks the user for the hub's password in a dialog and
/// logs in; then the run waits until sendPresets(), so that no hub is changed before the user has
/// answered for every hub. sendPresets() transfers everything. A run that fails, is cancelled or
/// gets no answer for half a minute ends at once; the sender is then idle and start() begins anew.
///
/// It owns the socket, keeps the time and runs the dialogs; what is said and what answers mean is
/// up to InstallRun.
class PresetFileSender : public QObject
{
    Q_OBJECT

public:
    /// `ipAddress` and `hostName` are the hub's; `doc` is not owned and must outlive the sender.
    /// `parent` is the page: the dialogs open over it, and its slot identifyButtonClicked(QString)
    /// is called when their identify button is pressed. It may be destroyed at any time, also
    /// while a dialog is open.
    PresetFileSender(const QString& ipAddress, const QString& hostName, IDocAccessor* doc,
                     QWidget* parent);
    ~PresetFileSender() override;

    /// Renames the hub, also in the dialogs that exist already.
    void setHostName(const QString& hostName);

    /// Begins a run. An earlier one that is still under way is dropped without an outcome of its
    /// own; while the user is being asked for the password, that run simply goes on.
    void start();

    /// Goes on with the transfer. Does nothing unless this sender has logged in and is waiting for
    /// it; so it may be called for every hub whenever the last answer has come in.
    void sendPresets();

    /// True from a successful log-in to the next start().
    bool isLoggedIn() const { return m_loggedIn; }

    /// True from the user's "Cancel" to the next start().
    bool isLoginCancelled() const { return m_loginCancelled; }

    /// True from start() until the run has ended, however it ended. Nobody needs to wait for a
    /// hub that is not running.
    bool isRunning() const { return m_state != State::Idle; }

Q_SIGNALS:
    /// The outcome: 1 = everything is installed, 0 = failed or cancelled. Emitted once per run,
    /// with one exception: when the hub refuses the recall, 0 is emitted although the run goes on,
    /// and the answer to its last request brings the outcome that counts. A receiver must not
    /// delete the sender, but may start it again.
    void finished(const QString& ipAddress, int result);

    /// The hub has accepted the password.
    void completedLogin();

    /// The user has cancelled; follows finished().
    void cancelledLogin();

protected:
    void timerEvent(QTimerEvent* event) override;

private Q_SLOTS:
    void tcpConnected();
    void tcpReadyRead();
    void runDialog();

private:
    enum class State
    {
        Idle,
        AwaitingReply,
        AskingUser, ///< time does not count, and the hub has nothing to say
        LoggedIn    ///< waiting for sendPresets()
    };

    void createSocket();
    void dropEarlierRun();
    void connectToHub();
    void startCountdown();
    void send();
    void writeUnsent();
    void evaluate(const QString& reply);
    void carryOut(InstallMove move);
    void ask();
    void endLogIn();
    void cancelLogIn();
    void end(bool success);
    HubDialog* dialogOfStep();
    template <typename Dialog>
    Dialog* makeDialog();
    void setErrorVisible(bool visible);

    QString m_ipAddress;
    QString m_hostName;
    QWidget* m_page;
    InstallRun m_run;
    State m_state = State::Idle;
    bool m_loggedIn = false;
    bool m_loginCancelled = false;
    QTcpSocket* m_socket = nullptr;
    QByteArray m_unsent; ///< the request that waits for the connection
    std::unique_ptr<ReplyReader> m_reader;
    QBasicTimer m_ticks;
    int m_secondsLeft = 0;
    QPointer<InitialPasswordDialog> m_initialPasswordDialog; ///< made on first need
    QPointer<LoginDialog> m_loginDialog;                     ///< made on first need
};
