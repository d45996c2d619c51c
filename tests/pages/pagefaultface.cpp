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

class PageFace : public QObject, public FaultFace
{
    Q_OBJECT

public:
    explicit PageFace(const HallDescription& description)
        : m_step(description)
    {
        // After the page, which makes the hubs' senders then.
        connect(m_step.execute(), SIGNAL(clicked()), this, SLOT(watch()));
    }

    Hall& hall() override { return m_step.hall; }

    void giveUpAfter(int answers) override
    {
        m_step.answers.giveUpAfter(m_step.address(1), answers);
    }

    void install() override { press(m_step.execute()); }

    void waitUntilQuiet() override { ::waitUntilQuiet(m_step); }

    /// Only a page whose hubs are all done leads on.
    bool waitUntilOver() override
    {
        const bool isOver = ::waitUntilOver(m_step.page);
        const bool isDone =
            m_step.statuses().count(QStringLiteral("Done")) == m_step.hall.hubs().size();
        return isOver && isDone == (m_step.execute()->text() == u"Next");
    }

    void passSeconds(int seconds) override { ::passSeconds(presetSender(), seconds); }

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

private Q_SLOTS:
    /// Before anything of the network is heard: a hub may fail while the button is still going up.
    void watch()
    {
        m_ends = std::make_unique<QSignalSpy>(presetSender(), SIGNAL(finished(QString, int)));
    }

private:
    static constexpr int statusColumn = 3;

    PresetFileSender* presetSender() const { return senderOf(m_step.page, m_step.address(1)); }

    InstallHall m_step;
    std::unique_ptr<QSignalSpy> m_ends;
};

} // namespace

std::unique_ptr<FaultFace> makePageFace(const HallDescription& description)
{
    return std::make_unique<PageFace>(description);
}

#include "pagefaultface.moc"
