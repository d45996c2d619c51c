#pragma once

#include <QObject>
#include <QPointer>

class HubDialog;
class IDocAccessor;
class InitialPasswordDialog;
class InstallDriver;
class LoginDialog;
class QWidget;
struct InstallOutcome;
struct InstallProgress;

/// Installs the wizard's presets on one hub: the face of an installation on its page.
///
/// A run has two halves. start() connects, asks the user for the hub's password in a dialog and
/// logs in; then the run waits until sendPresets(), so that no hub is changed before the user has
/// answered for every hub. sendPresets() transfers everything. A run that fails, is cancelled or
/// gets no answer for half a minute ends at once; the sender is then idle and start() begins anew.
///
/// It runs the dialogs; everything else is up to InstallDriver.
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
    bool isLoggedIn() const;

    /// True from the user's "Cancel" to the next start().
    bool isLoginCancelled() const { return m_loginCancelled; }

    /// True from start() until the run has ended, however it ended. Nobody needs to wait for a
    /// hub that is not running.
    bool isRunning() const;

    /// What runs the installation; owned by this.
    InstallDriver* driver() const { return m_driver; }

    /// How the last run went, with the reason of a failure; up to date when finished() is emitted.
    const InstallOutcome& outcome() const;

    /// How far the transfer of the present or last run is.
    InstallProgress progress() const;

Q_SIGNALS:
    /// The outcome: 1 = everything is installed, 0 = failed or cancelled. Emitted once per run,
    /// with one exception: when the hub refuses the recall, 0 is emitted although the run goes on,
    /// and the answer to its last request brings the outcome that counts. A receiver must not
    /// delete the sender, but may start it again.
    void finished(const QString& ipAddress, int result);

    /// progress() has changed.
    void progressed(const QString& ipAddress);

    /// The hub has accepted the password.
    void completedLogin();

    /// The user has cancelled; follows finished().
    void cancelledLogin();

private Q_SLOTS:
    void askFirstPassword();
    void askPassword(bool wasRefused);
    void runDialog();
    void noteLogIn();
    void reportProgress();
    void reportRefusedRecall();
    void reportEnd();

private:
    void ask();
    void cancelLogIn();
    HubDialog* dialogOfRun();
    template <typename Dialog>
    Dialog* makeDialog();
    void setErrorVisible(bool visible);
    void setFirstPasswordRefused(bool refused);

    QString m_ipAddress;
    QString m_hostName;
    QWidget* m_page;
    InstallDriver* m_driver;
    bool m_loginCancelled = false;
    bool m_firstPasswordSubmitted = false;                   ///< in this run
    QPointer<InitialPasswordDialog> m_initialPasswordDialog; ///< made on first need
    QPointer<LoginDialog> m_loginDialog;                     ///< made on first need
};
