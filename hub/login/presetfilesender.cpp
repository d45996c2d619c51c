#include "presetfilesender.h"

#include "httpreply.h"
#include "httprequest.h"
#include "initialpassworddialog.h"
#include "logindialog.h"
#include "replyreader.h"

#include <QDebug>
#include <QTcpSocket>
#include <QThread>
#include <QTimerEvent>
#include <QWidget>

#include <utility>

namespace {

constexpr int tickMs = 1000;
constexpr int secondsOfSilence = 30;
constexpr unsigned long exportPauseSeconds = 1;
constexpr int installed = 1;
constexpr int failed = 0;

} // namespace

PresetFileSender::PresetFileSender(const QString& ipAddress, const QString& hostName,
                                   IDocAccessor* doc, QWidget* parent)
    : QObject(parent)
    , m_ipAddress(ipAddress)
    , m_hostName(hostName)
    , m_page(parent)
    , m_run(ipAddress, doc)
    , m_reader(std::make_unique<ReplyReader>())
{
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
    if (m_state == State::AskingUser) {
        return;
    }
    m_loggedIn = false;
    m_loginCancelled = false;
    createSocket();
    dropEarlierRun();
    m_run.begin();
    m_state = State::AwaitingReply;
    setErrorVisible(false);
    startCountdown();
    send();
}

void PresetFileSender::sendPresets()
{
    if (m_state != State::LoggedIn) {
        return;
    }
    m_run.beginTransfer();
    startCountdown();
    send();
}

void PresetFileSender::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_ticks.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    if (m_state == State::AskingUser) {
        return;
    }
    if (m_secondsLeft == 0) {
        end(false);
        return;
    }
    --m_secondsLeft;
    qDebug().noquote() << QStringLiteral("%1 Step:%2 Timeout:%3")
                              .arg(m_ipAddress, QString::number(int(m_run.step())),
                                   QString::number(m_secondsLeft));
}

void PresetFileSender::tcpConnected()
{
    writeUnsent();
}

void PresetFileSender::tcpReadyRead()
{
    m_secondsLeft = secondsOfSilence;
    qDebug().noquote()
        << QStringLiteral("%1 Reply Step:%2").arg(m_ipAddress, QString::number(int(m_run.step())));
    const QByteArray bytes = m_socket->readAll();
    if (m_state != State::AwaitingReply) {
        return;
    }
    m_reader->feed(bytes);
    if (const auto reply = m_reader->takeReply()) {
        evaluate(*reply);
    }
}

void PresetFileSender::runDialog()
{
    const QPointer<HubDialog> dialog = dialogOfStep();
    const QPointer<PresetFileSender> self(this);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    // The page, and with it dialog and sender, may be gone by now.
    if (!self) {
        return;
    }
    if (!accepted || !dialog) {
        cancelLogIn();
        return;
    }
    m_run.setPassword(dialog->password());
    send();
}

void PresetFileSender::createSocket()
{
    if (m_socket) {
        return;
    }
    m_socket = new QTcpSocket(this);
    connect(m_socket, SIGNAL(connected()), this, SLOT(tcpConnected()));
    connect(m_socket, SIGNAL(readyRead()), this, SLOT(tcpReadyRead()));
}

/// What the hub still has to say to an earlier run must not be heard by the next one.
void PresetFileSender::dropEarlierRun()
{
    if (isRunning()) {
        m_ticks.stop();
        m_socket->abort();
    }
}

void PresetFileSender::connectToHub()
{
    if (m_socket->state() == QAbstractSocket::ClosingState) {
        m_socket->abort();
    }
    if (m_socket->state() == QAbstractSocket::UnconnectedState) {
        m_socket->connectToHost(m_ipAddress, hubHttpPort);
    }
}

void PresetFileSender::startCountdown()
{
    if (!m_ticks.isActive()) {
        m_secondsLeft = secondsOfSilence;
        m_ticks.start(tickMs, this);
    }
}

void PresetFileSender::send()
{
    const auto request = m_run.request();
    if (!request) {
        end(false);
        return;
    }
    m_state = State::AwaitingReply;
    // What arrived before the question is no answer to it.
    m_reader->reset();
    m_unsent = request->toUtf8();
    connectToHub();
    writeUnsent();
}

/// A socket that is still connecting must not be given anything: should the hub refuse, it would
/// not get over it, and no later connection would come about.
void PresetFileSender::writeUnsent()
{
    if (m_socket->state() == QAbstractSocket::ConnectedState) {
        m_socket->write(std::exchange(m_unsent, QByteArray()));
    }
}

void PresetFileSender::evaluate(const QString& reply)
{
    if (HttpReply::wantsClose(HttpReply::header(reply))) {
        m_socket->disconnectFromHost();
    }
    carryOut(m_run.evaluate(reply));
}

void PresetFileSender::carryOut(InstallMove move)
{
    switch (move) {
    case InstallMove::SendAfterPause:
        QThread::sleep(exportPauseSeconds);
        send();
        break;
    case InstallMove::SendAfterRefusal:
        // In this order, so that a receiver finds the run in a state in which it can start anew.
        send();
        Q_EMIT finished(m_ipAddress, failed);
        break;
    case InstallMove::Send:
        send();
        break;
    case InstallMove::AskPasswordAgain:
        setErrorVisible(true);
        ask();
        break;
    case InstallMove::AskInitialPassword:
    case InstallMove::AskPassword:
        ask();
        break;
    case InstallMove::EndLogIn:
        endLogIn();
        break;
    case InstallMove::EndInSuccess:
        end(true);
        break;
    case InstallMove::EndInFailure:
        end(false);
        break;
    }
}

/// The dialog is run from the event loop and not from within readyRead(): the page may be
/// destroyed while the dialog is open, and a socket does not survive its end inside its own signal.
void PresetFileSender::ask()
{
    m_state = State::AskingUser;
    QMetaObject::invokeMethod(this, &PresetFileSender::runDialog, Qt::QueuedConnection);
}

void PresetFileSender::endLogIn()
{
    setErrorVisible(false);
    m_ticks.stop();
    m_state = State::LoggedIn;
    m_loggedIn = true;
    Q_EMIT completedLogin();
}

void PresetFileSender::cancelLogIn()
{
    m_loginCancelled = true;
    end(false);
    Q_EMIT cancelledLogin();
}

void PresetFileSender::end(bool success)
{
    m_ticks.stop();
    m_state = State::Idle;
    m_unsent.clear();
    if (!success) {
        m_socket->abort();
    }
    Q_EMIT finished(m_ipAddress, success ? installed : failed);
}

HubDialog* PresetFileSender::dialogOfStep()
{
    if (m_run.step() == InstallStep::Validate) {
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
