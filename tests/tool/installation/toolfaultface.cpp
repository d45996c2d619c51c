#include "toolfaultface.h"

#include "hall.h"
#include "halldocument.h"
#include "hallinstallation.h"
#include "installdriver.h"
#include "knownpasswords.h"
#include "quickhall.h"
#include "senderclock.h"
#include "stillness.h"

#include <QSignalSpy>
#include <QTest>

#include <utility>

namespace {

constexpr int longestWaitMs = 60000;

QStringList addressesOf(const HallDescription& description)
{
    QStringList addresses;
    for (const HubDescription& hub : description.hubs) {
        addresses.append(hub.address);
    }
    return addresses;
}

class ToolFace : public FaultFace
{
public:
    explicit ToolFace(const HallDescription& description)
        : m_hall(description)
        , m_installation(&m_doc, addressesOf(description), &m_passwords)
        , m_ends(m_installation.findChild<InstallDriver*>(), SIGNAL(ended()))
        , m_refusals(m_installation.findChild<InstallDriver*>(), SIGNAL(recallRefused()))
        , m_finished(&m_installation, SIGNAL(finished()))
    {
        QString error;
        const bool isStarted = m_hall.start(&error);
        QVERIFY2(isStarted, qPrintable(error));
        enterQuickHall(m_doc, description);
    }

    Hall& hall() override { return m_hall; }

    void giveUpAfter(int answers) override
    {
        m_passwords.giveUpAfter(m_installation.hubs().first(), answers);
    }

    void install() override
    {
        m_ends.clear();
        m_refusals.clear();
        m_finished.clear();
        m_installation.start();
    }

    void waitUntilQuiet() override
    {
        qsizetype before = activity();
        waitUntilStill([this, &before] { return std::exchange(before, activity()) != activity(); });
    }

    bool waitUntilOver() override
    {
        return m_finished.size() == 1 || m_finished.wait(longestWaitMs);
    }

    void passSeconds(int seconds) override { ::passSeconds(&m_installation, seconds); }

    QString status(int hub) const override
    {
        const QString address = m_installation.hubs().at(hub);
        if (m_installation.isRunning(address)) {
            return QStringLiteral("Installing...");
        }
        return m_installation.outcome(address).isInstalled ? QStringLiteral("Done")
                                                           : QStringLiteral("Error");
    }

    QString reason(int hub) const override
    {
        return m_installation.reason(m_installation.hubs().at(hub));
    }

    /// A refused recall is told before the end, and counts as one as it does on the page.
    int endCount() const override { return int(m_ends.size() + m_refusals.size()); }

    int promptCount() const override
    {
        return m_passwords.promptCount(m_installation.hubs().first());
    }

private:
    /// Everything that hubs and user have done so far.
    qsizetype activity() const
    {
        qsizetype sum = m_passwords.wishes().size();
        for (const SimulatedHub* hub : m_hall.hubs()) {
            sum += hub->journal().size();
        }
        return sum;
    }

    HallDocument m_doc;
    Hall m_hall;
    KnownPasswords m_passwords{quickPassword()};
    HallInstallation m_installation;
    QSignalSpy m_ends;
    QSignalSpy m_refusals;
    QSignalSpy m_finished;
};

} // namespace

std::unique_ptr<FaultFace> makeToolFace(const HallDescription& description)
{
    return std::make_unique<ToolFace>(description);
}
