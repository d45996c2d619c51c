#include "pagefaultface.h"

#include "installhall.h"
#include "installwatch.h"
#include "pagefixtures.h"
#include "presetfilesender.h"
#include "senderclock.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTreeWidget>

namespace {

class PageFace : public FaultFace
{
public:
    explicit PageFace(const HallDescription& description)
        : m_step(description)
    {
    }

    Hall& hall() override { return m_step.hall; }

    void giveUpAfter(int answers) override
    {
        m_step.answers.giveUpAfter(m_step.address(1), answers);
    }

    void install() override
    {
        press(m_step.execute());
        m_ends = std::make_unique<QSignalSpy>(sender(), SIGNAL(finished(QString, int)));
    }

    void waitUntilQuiet() override { ::waitUntilQuiet(m_step); }

    /// Only a page whose hubs are all done leads on.
    bool waitUntilOver() override
    {
        const bool isOver = ::waitUntilOver(m_step.page);
        const bool isDone =
            m_step.statuses().count(QStringLiteral("Done")) == m_step.hall.hubs().size();
        return isOver && isDone == (m_step.execute()->text() == u"Next");
    }

    void passSeconds(int seconds) override { ::passSeconds(sender(), seconds); }

    QString status(int hub) const override { return m_step.status(hub + 1); }

    QString reason(int hub) const override
    {
        return rowWith(*m_step.list(), "IP Address", m_step.address(hub + 1))
            ->toolTip(statusColumn);
    }

    int endCount() const override { return int(m_ends->size()); }

    int promptCount() const override
    {
        return int(m_step.answers.prompts().count(m_step.address(1)));
    }

private:
    static constexpr int statusColumn = 3;

    PresetFileSender* sender() const { return senderOf(m_step.page, m_step.address(1)); }

    InstallHall m_step;
    std::unique_ptr<QSignalSpy> m_ends;
};

} // namespace

std::unique_ptr<FaultFace> makePageFace(const HallDescription& description)
{
    return std::make_unique<PageFace>(description);
}
