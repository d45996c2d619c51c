#include "walkprogress.h"

WalkProgress::WalkProgress(const WalkResult* result, Terminal* terminal)
    : m_result(result)
    , m_terminal(terminal)
{
}

void WalkProgress::sayLayout(int number)
{
    for (const SceneInfo& layout : m_result->layouts) {
        if (layout.number == number) {
            m_terminal->say(QStringLiteral("layout %1: active on %2 of %3 hubs")
                                .arg(QString::number(number),
                                     QString::number(rightHubCount(*m_result, layout)),
                                     QString::number(m_result->hubs.size())));
        }
    }
}

void WalkProgress::sayInterruption()
{
    if (m_result->walk.hasRecalled()) {
        m_terminal->say(
            QStringLiteral("interrupted: recalls what was active before; once more leaves"));
    }
}
