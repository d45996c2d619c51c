#include "hallinstallation.h"

#include "installdriver.h"
#include "installwords.h"
#include "passwordsource.h"

#include <algorithm>

HallInstallation::HallInstallation(IDocAccessor* doc, const QStringList& hubs,
                                   PasswordSource* passwords, QObject* parent)
    : QObject(parent)
    , m_hubs(hubs)
    , m_passwords(passwords)
{
    for (const QString& hub : hubs) {
        auto* const driver = new InstallDriver(hub, doc, this);
        connect(driver, SIGNAL(firstPasswordWanted()), this, SLOT(askFirstPassword()));
        connect(driver, SIGNAL(passwordWanted(bool)), this, SLOT(askPassword(bool)));
        connect(driver, SIGNAL(loggedIn()), this, SLOT(goOn()));
        connect(driver, SIGNAL(progressed()), this, SIGNAL(progressed()));
        connect(driver, SIGNAL(ended()), this, SLOT(noteEnd()));
        m_drivers.insert(hub, driver);
        m_barrier.add(driver);
    }
    connect(passwords, SIGNAL(given(QString, QString)), this, SLOT(submit(QString, QString)));
    connect(passwords, SIGNAL(withheld(QString, QString)), this, SLOT(cancel(QString, QString)));
    connect(passwords, SIGNAL(lost()), this, SLOT(breakOff()));
}

void HallInstallation::start()
{
    m_gotFirst.clear();
    m_withheld.clear();
    m_isBrokenOff = false;
    m_isFinished = false;
    for (const QString& hub : m_hubs) {
        m_drivers.value(hub)->start();
    }
}

bool HallInstallation::isRunning(const QString& hub) const
{
    return m_drivers.value(hub)->isRunning();
}

const InstallOutcome& HallInstallation::outcome(const QString& hub) const
{
    return m_drivers.value(hub)->outcome();
}

QString HallInstallation::reason(const QString& hub) const
{
    const InstallOutcome& ended = outcome(hub);
    const bool isWithheld = ended.trouble == InstallTrouble::Cancelled && m_withheld.contains(hub);
    return isWithheld ? reasonWords(ended.place, m_withheld.value(hub)) : reasonWords(ended);
}

InstallProgress HallInstallation::progress(const QString& hub) const
{
    return m_drivers.value(hub)->progress();
}

void HallInstallation::breakOff()
{
    // The end of one hub must not be the beginning of another's transfer.
    m_isBrokenOff = true;
    m_passwords->stop();
    for (const QString& hub : m_hubs) {
        m_drivers.value(hub)->breakOff();
    }
}

void HallInstallation::askFirstPassword()
{
    const QString hub = hubOfSender();
    m_passwords->ask({.address = hub,
                      .isFirst = true,
                      .wasRefused = m_gotFirst.contains(hub),
                      .refusal = m_drivers.value(hub)->refusal()});
}

void HallInstallation::askPassword(bool wasRefused)
{
    const QString hub = hubOfSender();
    m_passwords->ask(
        {.address = hub, .wasRefused = wasRefused, .refusal = m_drivers.value(hub)->refusal()});
}

void HallInstallation::submit(const QString& hub, const QString& password)
{
    InstallDriver* const driver = m_drivers.value(hub);
    if (driver->wantsFirstPassword()) {
        m_gotFirst.insert(hub);
    }
    driver->submitPassword(password);
}

void HallInstallation::cancel(const QString& hub, const QString& reason)
{
    m_withheld.insert(hub, reason);
    m_drivers.value(hub)->cancelLogIn();
}

void HallInstallation::goOn()
{
    if (!m_isBrokenOff) {
        m_barrier.goOn();
    }
}

/// Going on may end further hubs at once: whose end is the last one is asked afterwards.
void HallInstallation::noteEnd()
{
    Q_EMIT hubEnded(hubOfSender());
    goOn();
    if (!m_isFinished && !isAnyRunning()) {
        m_isFinished = true;
        Q_EMIT finished();
    }
}

QString HallInstallation::hubOfSender() const
{
    return m_drivers.key(qobject_cast<InstallDriver*>(sender()));
}

bool HallInstallation::isAnyRunning() const
{
    return std::any_of(m_drivers.begin(), m_drivers.end(),
                       [](const InstallDriver* driver) { return driver->isRunning(); });
}
