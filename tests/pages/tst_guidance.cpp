#include "fakecontroller.h"
#include "pageconfigure.h"
#include "pagecreatescene.h"
#include "pagedevicelocation.h"
#include "pagefixtures.h"
#include "pageroomdesign.h"
#include "removebutton.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

namespace {

const QString hub = QStringLiteral("PX-HB");
const QString microphone = QStringLiteral("PX-DL8");
const QString controller = QStringLiteral("PNB-QE7");

QString address(int device)
{
    return QStringLiteral("127.71.0.%1").arg(device);
}

/// A page in front of a document that a test fills first, and where it says what is missing.
template <typename Page>
struct Shown
{
    void enter()
    {
        page.enterFrom(page.pageNumber() - 1);
        page.resize(780, 540);
        page.show();
    }

    void add(const QString& model, int count, int room)
    {
        for (int i = 0; i < count; ++i) {
            ++devices;
            addTestDevice(doc, QStringLiteral("device %1").arg(devices), model, address(devices),
                          room);
        }
    }

    QString line() const
    {
        return page.template findChild<QLabel*>(QStringLiteral("quietLine"))->text();
    }

    QPushButton* next() const
    {
        return page.template findChild<QPushButton*>(QStringLiteral("nextButton"));
    }

    /// The same for eyes, for a pointer, and for ears; whether Next can be pressed goes with it.
    void checkSays(const QStringList& sentences) const
    {
        const qsizetype more = sentences.size() - 1;
        QCOMPARE(line(), more > 0
                             ? QStringLiteral("%1 And %2 more.").arg(sentences.first()).arg(more)
                             : sentences.value(0));
        QCOMPARE(next()->accessibleDescription(), sentences.join(u' '));
        QCOMPARE(next()->isEnabled(), sentences.isEmpty());
        QCOMPARE(next()->toolTip(),
                 sentences.isEmpty() ? QStringLiteral("Alt+Right") : sentences.join(u'\n'));
    }

    TesselDoc doc{nullptr};
    FakeController wizard;
    Page page{&wizard, &doc, nullptr};
    int devices = 0;
};

} // namespace

class TestGuidance : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aHallNeedsTwoRooms();
    void someDeviceNeedsARoom();
    void withoutAnyDeviceNoneCanBePlaced();
    void everyLimitOfARoomIsNamed();
    void aLayoutIsNeeded();
    void everyLimitOfADeviceSetIsNamed();
    void aSetThatStaysTooLargeSaysItsNewNumber();
};

void TestGuidance::aHallNeedsTwoRooms()
{
    Shown<PageRoomDesign> step;
    step.enter();
    step.checkSays({QStringLiteral("Draw two rooms or more.")});
    auto* editor = step.page.findChild<QWidget*>(QStringLiteral("roomEditor"));
    QTest::mouseClick(editor, Qt::LeftButton, {}, {20, 20});
    step.checkSays(
        {QStringLiteral("Draw one room more: a single one can be neither divided nor combined.")});
    QTest::mouseClick(editor, Qt::LeftButton, {}, {220, 220});
    step.checkSays({});
    press(step.page.findChild<QWidget*>(QStringLiteral("resetButton")));
    step.checkSays({QStringLiteral("Draw two rooms or more.")});
}

void TestGuidance::someDeviceNeedsARoom()
{
    Shown<PageDeviceLocation> step;
    drawRooms(step.doc, 2);
    step.add(microphone, 1, 0);
    step.enter();
    step.checkSays({QStringLiteral("Choose a room for one device or more.")});
    QTest::keyClick(step.page.findChild<QComboBox*>(), Qt::Key_Down);
    step.checkSays({});
}

void TestGuidance::withoutAnyDeviceNoneCanBePlaced()
{
    Shown<PageDeviceLocation> step;
    drawRooms(step.doc, 2);
    step.enter();
    step.checkSays({QStringLiteral("No device has been found yet: none can be placed in a room.")});
}

void TestGuidance::everyLimitOfARoomIsNamed()
{
    Shown<PageDeviceLocation> step;
    drawRooms(step.doc, 2);
    step.add(hub, 2, 1);
    step.add(microphone, 17, 2);
    step.add(controller, 9, 2);
    step.enter();
    step.checkSays(
        {QStringLiteral("Room 1 has 2 PX-HBs; 1 is possible."),
         QStringLiteral("Room 2 has 17 microphones; 16 are possible."),
         QStringLiteral("Room 2 has 17 microphones and speakers together; 16 are possible."),
         QStringLiteral("Room 2 has 9 controllers; 8 are possible.")});
    const auto* summary = step.page.findChild<QTreeWidget*>(QStringLiteral("summaryTable"));
    QCOMPARE(summary->topLevelItem(1)->toolTip(2),
             QStringLiteral("17 microphones; 16 are possible\n"
                            "17 microphones and speakers together; 16 are possible"));
    QCOMPARE(summary->topLevelItem(1)->toolTip(4), QStringLiteral("9 controllers; 8 are possible"));
}

void TestGuidance::aLayoutIsNeeded()
{
    Shown<PageCreateScene> step;
    drawRooms(step.doc, 2);
    step.enter();
    step.checkSays({QStringLiteral("Add one room layout or more.")});
    press(step.page.findChild<QWidget*>(QStringLiteral("addLayoutButton")));
    step.checkSays({});
}

void TestGuidance::everyLimitOfADeviceSetIsNamed()
{
    Shown<PageConfigure> step;
    drawRooms(step.doc, 2);
    step.add(hub, 1, 1);
    step.add(hub, 1, 2);
    step.add(controller, 9, 2);
    addTestLayout(step.doc, 1, QStringLiteral("1/2"));
    addTestLayout(step.doc, 2, QStringLiteral("1+2"));
    step.enter();
    step.checkSays({QStringLiteral("Layout 1, room 2 has 9 controllers; 8 are possible."),
                    QStringLiteral("Layout 2, room 1,2 has 2 PX-HBs; 1 is possible."),
                    QStringLiteral("Layout 2, room 1,2 has 9 controllers; 8 are possible.")});
}

void TestGuidance::aSetThatStaysTooLargeSaysItsNewNumber()
{
    Shown<PageConfigure> step;
    drawRooms(step.doc, 2);
    step.add(microphone, 18, 1);
    addTestLayout(step.doc, 1, QStringLiteral("1/2"));
    step.enter();
    step.checkSays({QStringLiteral(
        "Layout 1, room 1 has 18 microphones and speakers together; 16 are possible.")});
    const QList<RemoveButton*> buttons = step.page.findChildren<RemoveButton*>();
    press(buttons.at(0));
    step.checkSays({QStringLiteral(
        "Layout 1, room 1 has 17 microphones and speakers together; 16 are possible.")});
    press(buttons.at(1));
    step.checkSays({});
}

TESSEL_TEST_MAIN(TestGuidance)
#include "tst_guidance.moc"
