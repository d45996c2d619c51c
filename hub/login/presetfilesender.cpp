#include "presetfilesender.h"

#include "initialpassworddialog.h"
#include "installdriver.h"
#include "logindialog.h"

#include <QWidget>

namespace {

constexpr int installed = 1;
constexpr int failed = 0;

} // namespace

PresetFileSender::PresetFileSender(const QString& ipAddress, const QString& hostName,
                                   IDocAccessor* doc, QWidget* parent)
    : QObject(parent)
    , m_ipAddress(ipAddress)
    , m_hostName(hostName)
    , m_page(parent)
    , m_driver(new InstallDriver(ipAddress, doc, this))
{
    connect(m_driver, SIGNAL(firstPasswordWanted()), this, SLOT(askFirstPassword()));
    connect(m_driver, SIGNAL(passwordWanted(bool)), this, SLOT(askPassword(bool)));
    connect(m_driver, SIGNAL(loggedIn()), this, SLOT(noteLogIn()));
    connect(m_driver, SIGNAL(progressed()), this, SLOT(reportProgress()));
    connect(m_driver, SIGNAL(recallRefused()), this, SLOT(reportRefusedRecall()));
    connect(m_driver, SIGNAL(ended()), this, SLOT(reportEnd()));
}

PresetFileSender::~PresetFileSender()
{
    delete m_initialPasswordDialog;
    delete m_loginDialog;
}

void PresetFileSender::setHostName(const QString& hostName)
{
    m_hostName = hostName;
    if (m_initialPasswordDialog) {
        m_initialPasswordDialog->setHostName(hostName);
    }
    if (m_loginDialog) {
        m_loginDialog->setHostName(hostName);
    }
}

void PresetFileSender::start()
{
    if (m_driver->isAskingUser()) {
        return;
    }
    m_loginCancelled = false;
    m_firstPasswordSubmitted = false;
    setErrorVisible(false);
    setFirstPasswordRefused(false);
    m_driver->start();
}

void PresetFileSender::sendPresets()
{
    m_driver->sendPresets();
}

bool PresetFileSender::isLoggedIn() const
{
    return m_driver->isLoggedIn();
}

bool PresetFileSender::isRunning() const
{
    return m_driver->isRunning();
}

const InstallOutcome& PresetFileSender::outcome() const
{
    return m_driver->outcome();
}

InstallProgress PresetFileSender::progress() const
{
    return m_driver->progress();
}

void PresetFileSender::askFirstPassword()
{
    setFirstPasswordRefused(m_firstPasswordSubmitted);
    ask();
}

void PresetFileSender::askPassword(bool wasRefused)
{
    if (wasRefused) {
        setErrorVisible(true);
    }
    ask();
}

void PresetFileSender::runDialog()
{
    const QPointer<HubDialog> dialog = dialogOfRun();
    const QPointer<PresetFileSender> self(this);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    // The page, and with it dialog and sender, may be gone by now.
    if (!self) {
        return;
    }
    if (accepted && dialog) {
        m_firstPasswordSubmitted = m_driver->wantsFirstPassword();
        m_driver->submitPassword(dialog->password());
    } else {
        cancelLogIn();
    }
}

void PresetFileSender::noteLogIn()
{
    setErrorVisible(false);
    Q_EMIT completedLogin();
}

void PresetFileSender::reportProgress()
{
    Q_EMIT progressed(m_ipAddress);
}

void PresetFileSender::reportRefusedRecall()
{
    Q_EMIT finished(m_ipAddress, failed);
}

void PresetFileSender::reportEnd()
{
    Q_EMIT finished(m_ipAddress, outcome().isInstalled ? installed : failed);
}

/// The dialog is run from the event loop and not from within the driver's signal, which comes out
/// of the socket's own: the page may be destroyed while the dialog is open, and a socket does not
/// survive its end inside its own signal.
void PresetFileSender::ask()
{
    QMetaObject::invokeMethod(this, &PresetFileSender::runDialog, Qt::QueuedConnection);
}

void PresetFileSender::cancelLogIn()
{
    m_loginCancelled = true;
    m_driver->cancelLogIn();
    Q_EMIT cancelledLogin();
}

HubDialog* PresetFileSender::dialogOfRun()
{
    if (m_driver->wantsFirstPassword()) {
        if (!m_initialPasswordDialog) {
            m_initialPasswordDialog = makeDialog<InitialPasswordDialog>();
        }
        return m_initialPasswordDialog;
    }
    if (!m_loginDialog) {
        m_loginDialog = makeDialog<LoginDialog>();
    }
    return m_loginDialog;
}

template <typename Dialog>
Dialog* PresetFileSender::makeDialog()
{
    auto* dialog = new Dialog(m_page, m_ipAddress, m_hostName);
    connect(dialog, SIGNAL(identifyButtonClicked(QString)), m_page,
            SLOT(identifyButtonClicked(QString)));
    return dialog;
}

void PresetFileSender::setErrorVisible(bool visible)
{
    if (m_loginDialog) {
        m_loginDialog->setErrorVisible(visible);
    }
}

void PresetFileSender::setFirstPasswordRefused(bool refused)
{
    if (m_initialPasswordDialog) {
        m_initialPasswordDialog->setRefused(refused);
    }
}
