#include "installbarrier.h"

#include "installdriver.h"

#include <algorithm>

void InstallBarrier::add(InstallDriver* driver)
{
    m_drivers.append(driver);
}

void InstallBarrier::goOn() const
{
    // A log-in that was cancelled has ended the run, like every failure.
    const bool isAnswerDue =
        std::any_of(m_drivers.begin(), m_drivers.end(), [](const InstallDriver* driver) {
            return driver->isRunning() && !driver->isLoggedIn();
        });
    if (!isAnswerDue) {
        for (InstallDriver* driver : m_drivers) {
            driver->sendPresets();
        }
    }
}
