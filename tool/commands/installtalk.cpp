#include "installtalk.h"

#include "displaywidth.h"
#include "hallinstallation.h"
#include "terminal.h"

namespace {

constexpr int nameWidth = 34;
constexpr int barWidth = 22;

/// Exactly so wide.
QString fitted(const QString& text, int width)
{
    const QString part = wrapped(text, width).first();
    return part + QString(width - displayWidth(part), u' ');
}

/// How much of the bar is full.
int fullWidth(const InstallProgress& progress)
{
    return progress.filesToStore == 0 ? 0 : barWidth * progress.filesStored / progress.filesToStore;
}

} // namespace

InstallTalk::InstallTalk(const QHash<QString, QString>& names, const HallInstallation* installation,
                         Terminal* terminal)
    : m_names(names)
    , m_installation(installation)
    , m_terminal(terminal)
{
    connect(installation, SIGNAL(progressed()), this, SLOT(showProgress()));
    connect(installation, SIGNAL(hubEnded(QString)), this, SLOT(sayEnd(QString)));
}

void InstallTalk::sayBegin()
{
    if (m_terminal->isWatched()) {
        return;
    }
    for (const QString& hub : m_installation->hubs()) {
        m_terminal->say(m_names.value(hub) + QStringLiteral(": started"));
    }
}

void InstallTalk::end()
{
    if (m_hasBars) {
        m_terminal->letGo();
    }
}

void InstallTalk::showProgress()
{
    m_hasBars = true;
    QStringList bars;
    for (const QString& hub : m_installation->hubs()) {
        bars.append(barOf(hub));
    }
    m_terminal->draw(bars);
}

void InstallTalk::sayEnd(const QString& hub)
{
    const QString reason = m_installation->reason(hub);
    const QString line = m_names.value(hub) + QStringLiteral(": ") + wordsOf(hub) +
                         (reason.isEmpty() ? QString() : QStringLiteral(": ") + reason);
    if (!m_terminal->isWatched() || !reason.isEmpty()) {
        m_terminal->say(line);
    }
    if (m_hasBars) {
        showProgress();
    }
}

void InstallTalk::sayInterruption()
{
    m_terminal->say(QStringLiteral("interrupted: hubs that are not done are not finished"));
}

QString InstallTalk::barOf(const QString& hub) const
{
    const int full = fullWidth(m_installation->progress(hub));
    return fitted(m_names.value(hub), nameWidth) + QStringLiteral(" [") + QString(full, u'#') +
           QString(barWidth - full, u'.') + QStringLiteral("] ") + wordsOf(hub);
}

QString InstallTalk::wordsOf(const QString& hub) const
{
    if (!m_installation->isRunning(hub)) {
        return m_installation->outcome(hub).isInstalled ? QStringLiteral("done")
                                                        : QStringLiteral("error");
    }
    const InstallProgress progress = m_installation->progress(hub);
    if (progress.filesToStore == 0) {
        return QStringLiteral("waits");
    }
    return QStringLiteral("%1 of %2 files")
        .arg(QString::number(progress.filesStored), QString::number(progress.filesToStore));
}
