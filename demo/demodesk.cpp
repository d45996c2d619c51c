#include "demodesk.h"

#include "dialoganswerer.h"
#include "finding.h"
#include "hands.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTextStream>
#include <QTreeWidget>

#include <cstdlib>

namespace {

constexpr int windowWaitMs = 10000;
// Within this the interface dialog is up, where one is due.
constexpr int dialogWaitMs = 300;
// Long enough for a dialog to be laid out and painted, short enough not to be waited for.
constexpr int dialogShownMs = 40;
// No step of the demo takes this long on a slow machine.
constexpr int stuckAfterMs = 150000;

} // namespace

DemoDesk::DemoDesk(const QString& pictureFolder, QObject* parent)
    : QObject(parent)
    , m_pictureFolder(pictureFolder)
    , m_dialogs(new DialogAnswerer(this, dialogShownMs))
{
    QDir().mkpath(m_pictureFolder);
    m_watchdog.start(stuckAfterMs, this);
}

bool DemoDesk::waitForWindow()
{
    QTest::qWait(dialogWaitMs);
    const bool shown = QTest::qWaitFor(
        [this] {
            if (QWidget* window = wizardWindow()) {
                m_hands.emplace(window);
            }
            // The interface dialog, when one comes up, is answered meanwhile.
            return m_hands && !QApplication::activeModalWidget();
        },
        windowWaitMs);
    return shown || failed(QStringLiteral("the window did not come up"));
}

void DemoDesk::answerInterfaceDialog()
{
    m_dialogs->onDialog("networkDialog", [this](QWidget* dialog) {
        const QTreeWidget* list = tableOf(*dialog, "nicList");
        QStringList addresses = columnTexts(*list, "IP Address");
        // A machine may have idle interfaces beside the one that leads to the hall.
        addresses.removeAll(QString());
        Hands::clickRow(rowWith(*list, "IP Address", addresses.value(0)));
        pictureOf(dialog, QStringLiteral("dialog-interface"));
        Hands::click(buttonOf(*dialog, "okButton"));
    });
}

bool DemoDesk::press(QAnyStringView button)
{
    return m_hands->press(button) ||
           failed(QStringLiteral("%1 cannot be pressed").arg(button.toString()));
}

bool DemoDesk::goOnTo(int number)
{
    return press("nextButton") && m_hands->pageNumber() == number;
}

QSize DemoDesk::sizeOnScreen(QSize size) const
{
    const QSize frame(16, 40);
    return size.boundedTo(window()->screen()->availableSize() - frame)
        .expandedTo(window()->minimumSize());
}

void DemoDesk::picture(const QString& name)
{
    letPaint();
    pictureOf(window(), name);
}

void DemoDesk::pictureOf(QWidget* window, const QString& name)
{
    window->grab().save(QStringLiteral("%1/%2.png").arg(m_pictureFolder, name));
}

bool DemoDesk::done(int step, const QString& what)
{
    say(QStringLiteral("Step %1: %2").arg(step).arg(what));
    return true;
}

bool DemoDesk::failed(const QString& why)
{
    say(QStringLiteral("FAILED: ") + why);
    if (m_hands) {
        picture(QStringLiteral("failed"));
    }
    return false;
}

void DemoDesk::timerEvent(QTimerEvent* /*event*/)
{
    const QWidget* dialog = QApplication::activeModalWidget();
    failed(QStringLiteral("stuck behind \"%1\"")
               .arg(dialog ? dialog->windowTitle() : QStringLiteral("the page")));
    // A dialog that nobody answers holds up everything else; only leaving at once is left.
    std::_Exit(EXIT_FAILURE);
}

void DemoDesk::say(const QString& line)
{
    QTextStream(stdout) << line << Qt::endl;
}

void DemoDesk::letPaint()
{
    QCoreApplication::processEvents();
}
