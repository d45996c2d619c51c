#include "installdriver.h"

#include "httpconnection.h"
#include "httpreply.h"

#include <QDebug>
#include <QTimerEvent>

namespace {

constexpr int tickMs = 1000;
constexpr int secondsOfSilence = 30;
constexpr std::chrono::seconds exportPause(1);

} // namespace

InstallDriver::InstallDriver(const QString& ipAddress, IDocAccessor* doc, QObject* parent)
    : QObject(parent)
    , m_ipAddress(ipAddress)
    , m_run(ipAddress, doc)
    , m_connection(new HttpConnection(ipAddress, this))
{
    connect(m_connection, SIGNAL(arrived()), this, SLOT(noteArrival()));
    connect(m_connection, SIGNAL(replied(QString)), this, SLOT(evaluate(QString)));
}

void InstallDriver::start()
{
    if (isAskingUser()) {
        return;
    }
    if (isRunning()) {
        // What the hub still has to say to that run must not be heard by the next one.
        m_ticks.stop();
        m_connection->drop();
    }
    m_isLoggedIn = false;
    m_outcome = {};
    m_run.begin();
    startCountdown();
    send();
}

void InstallDriver::submitPassword(const QString& password)
{
    if (isAskingUser()) {
        m_run.setPassword(password);
        send();
    }
}

void InstallDriver::cancelLogIn()
{
    if (isAskingUser()) {
        fail(InstallTrouble::Cancelled);
    }
}

void InstallDriver::breakOff()
{
    if (isRunning()) {
        fail(InstallTrouble::BrokenOff);
    }
}

void InstallDriver::sendPresets()
{
    if (m_state == State::LoggedIn) {
        const InstallProgress before = m_run.progress();
        m_run.beginTransfer();
        tellProgress(before);
        startCountdown();
        send();
    }
}

void InstallDriver::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_ticks.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    if (isAskingUser()) {
        return;
    }
    if (m_secondsLeft == 0) {
        fail(troubleOfSilence());
        return;
    }
    --m_secondsLeft;
    qDebug().noquote() << QStringLiteral("%1 Step:%2 Timeout:%3")
                              .arg(m_ipAddress, QString::number(int(m_run.step())),
                                   QString::number(m_secondsLeft));
}

void InstallDriver::noteArrival()
{
    m_secondsLeft = secondsOfSilence;
    qDebug().noquote()
        << QStringLiteral("%1 Reply Step:%2").arg(m_ipAddress, QString::number(int(m_run.step())));
}

void InstallDriver::evaluate(const QString& reply)
{
    const InstallProgress before = m_run.progress();
    const InstallMove move = m_run.evaluate(reply);
    tellProgress(before);
    carryOut(move, reply);
}

void InstallDriver::startCountdown()
{
    if (!m_ticks.isActive()) {
        m_secondsLeft = secondsOfSilence;
        m_ticks.start(tickMs, this);
    }
}

void InstallDriver::send(std::chrono::milliseconds pause)
{
    m_state = State::AwaitingReply;
    const auto request = m_run.request();
    if (!request) {
        fail(InstallTrouble::MissingRecords);
    } else if (pause.count() > 0) {
        m_connection->askAfter(pause, *request);
    } else {
        m_connection->ask(*request);
    }
}

void InstallDriver::carryOut(InstallMove move, const QString& reply)
{
    switch (move) {
    case InstallMove::Send:
        send();
        break;
    case InstallMove::SendAfterPause:
        send(exportPause);
        break;
    case InstallMove::SendAfterRefusal:
        noteRefusedRecall();
        break;
    case InstallMove::AskInitialPassword:
    case InstallMove::AskPassword:
        m_refusal = HttpReply::statusText(reply);
        ask(false);
        break;
    case InstallMove::AskPasswordAgain:
        m_refusal = HttpReply::statusText(reply);
        ask(true);
        break;
    case InstallMove::EndLogIn:
        endLogIn();
        break;
    case InstallMove::EndInSuccess:
        succeed();
        break;
    case InstallMove::EndByStatus:
        fail(InstallTrouble::OtherStatus, HttpReply::statusText(reply));
        break;
    case InstallMove::EndUnconfirmed:
        fail(InstallTrouble::NotConfirmed);
        break;
    case InstallMove::EndForLackOfRecords:
        fail(InstallTrouble::MissingRecords);
        break;
    }
}

void InstallDriver::ask(bool wasRefused)
{
    m_state = State::AskingUser;
    if (wantsFirstPassword()) {
        Q_EMIT firstPasswordWanted();
    } else {
        Q_EMIT passwordWanted(wasRefused);
    }
}

void InstallDriver::endLogIn()
{
    m_ticks.stop();
    m_state = State::LoggedIn;
    m_isLoggedIn = true;
    Q_EMIT loggedIn();
}

void InstallDriver::tellProgress(InstallProgress before)
{
    if (m_run.progress() != before) {
        Q_EMIT progressed();
    }
}

/// In this order, so that a receiver finds the run in a state in which it can start anew.
void InstallDriver::noteRefusedRecall()
{
    m_outcome.trouble = InstallTrouble::NotConfirmed;
    m_outcome.place.step = InstallStep::Recall;
    send();
    Q_EMIT recallRefused();
}

void InstallDriver::succeed()
{
    InstallOutcome outcome = m_outcome;
    outcome.isInstalled = true;
    end(outcome);
}

void InstallDriver::fail(InstallTrouble trouble, const QString& status)
{
    m_connection->drop();
    end({.trouble = trouble, .place = m_run.place(), .status = status});
}

void InstallDriver::end(const InstallOutcome& outcome)
{
    m_ticks.stop();
    m_state = State::Idle;
    m_outcome = outcome;
    Q_EMIT ended();
}

/// The time runs out in the same way whatever happened to the connection; only the reason differs.
InstallTrouble InstallDriver::troubleOfSilence() const
{
    switch (m_connection->trouble()) {
    case HttpConnection::Trouble::Refused:
        return InstallTrouble::ConnectionRefused;
    case HttpConnection::Trouble::Unreachable:
        return InstallTrouble::Unreachable;
    case HttpConnection::Trouble::Broken:
        return InstallTrouble::ConnectionBroken;
    case HttpConnection::Trouble::None:
        break;
    }
    return InstallTrouble::Silence;
}
