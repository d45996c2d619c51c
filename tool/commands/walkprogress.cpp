#include "walkprogress.h"

#include "hallhubs.h"

WalkProgress::WalkProgress(const WalkResult* result, Terminal* terminal)
    : m_result(result)
    , m_terminal(terminal)
{
}

void WalkProgress::sayLayout(int number)
{
    for (const SceneInfo& layout : m_result->layouts) {
        QStringList words;
        for (const DeviceData& hub : m_result->hubs) {
            words.append(hubName(hub) + QStringLiteral(" ") + walkWords(*m_result, layout, hub));
        }
        if (layout.number == number) {
            m_terminal->say(QStringLiteral("layout %1: %2")
                                .arg(QString::number(number), words.join(QStringLiteral(", "))));
        }
    }
}

void WalkProgress::sayInterruption()
{
    m_terminal->say(QStringLiteral("interrupted: what was active before is recalled; once more "
                                   "leaves everything as it is"));
}
