#include "demodesk.h"

#include "demoscenario.h"
#include "demouser.h"
#include "dialoganswerer.h"
#include "treerows.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QStackedWidget>
#include <QTest>
#include <QTextStream>
#include <QTreeWidget>

#include <cstdlib>

namespace {

constexpr int interfaceAddressColumn = 1;
constexpr int windowWaitMs = 10000;
// Within this the interface dialog is up, where one is due.
constexpr int dialogWaitMs = 300;
// No step of the demo takes this long on a slow machine.
constexpr int stuckAfterMs = 150000;

} // namespace

DemoDesk::DemoDesk(const QString& pictureFolder, QObject* parent)
    : QObject(parent)
    , m_pictureFolder(pictureFolder)
    , m_dialogs(new DialogAnswerer(this))
{
    QDir().mkpath(m_pictureFolder);
    m_watchdog.start(stuckAfterMs, this);
}

bool DemoDesk::waitForWindow()
{
    QTest::qWait(dialogWaitMs);
    const bool shown = QTest::qWaitFor(
        [this] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (widget->inherits("MainWindow")) {
                    m_window = widget;
                }
            }
            // The interface dialog, when one comes up, is answered meanwhile.
            return m_window && m_window->isVisible() && !QApplication::activeModalWidget();
        },
        windowWaitMs);
    return shown || failed(QStringLiteral("the window did not come up"));
}

void DemoDesk::answerInterfaceDialog()
{
    m_dialogs->onDialog(QStringLiteral("networkDialog"), [this](QWidget* dialog) {
        auto* list = dialog->findChild<QTreeWidget*>(QStringLiteral("nicList"));
        // A machine may have idle interfaces beside the one that leads to the hall.
        DemoUser::clickRow(list, firstRowWithText(list, interfaceAddressColumn));
        pictureOf(dialog, QStringLiteral("dialog-interface"));
        DemoUser::click(dialog->findChild<QWidget*>(QStringLiteral("okButton")));
    });
}

bool DemoDesk::press(const QString& buttonName)
{
    auto* button = page()->findChild<QAbstractButton*>(buttonName);
    if (!button || !button->isEnabled()) {
        return failed(QStringLiteral("%1 cannot be pressed").arg(buttonName));
    }
    DemoUser::click(button);
    letPaint();
    return true;
}

QWidget* DemoDesk::page() const
{
    return m_window->findChild<QStackedWidget*>(QStringLiteral("pageStack"))->currentWidget();
}

bool DemoDesk::isOnPage(int number) const
{
    return m_window->findChild<QStackedWidget*>(QStringLiteral("pageStack"))->currentIndex() ==
           number - 1;
}

QTreeWidget* DemoDesk::tree(const QString& name) const
{
    for (auto* found : page()->findChildren<QTreeWidget*>(name)) {
        if (found->isVisible()) {
            return found;
        }
    }
    return nullptr;
}

QTreeWidget* DemoDesk::tableOf(const DemoDevice& device) const
{
    return tree(device.isHub() ? QStringLiteral("hubTable") : QStringLiteral("peripheralTable"));
}

void DemoDesk::picture(const QString& name)
{
    letPaint();
    pictureOf(m_window, name);
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
    if (m_window) {
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
