#include "announcements.h"
#include "dialoganswerer.h"
#include "installhall.h"
#include "pagecreatescene.h"
#include "pagefixtures.h"
#include "pageroomdesign.h"
#include "testcase.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

#include <QTreeWidget>
#include <optional>

namespace {

/// A page that was entered forward, and its user.
template <typename Page>
struct Shown
{
    explicit Shown(int rooms)
    {
        drawRooms(doc, rooms);
        page.enterFrom(page.pageNumber() - 1);
        page.resize(780, 540);
        page.show();
        Announcements::takeSaid();
    }

    TesselDoc doc{nullptr};
    FakeController wizard;
    Page page{&wizard, &doc, nullptr};
};

const QString refusal =
    QStringLiteral("No room was drawn: there are 4 already, which is as many as are possible.");

} // namespace

/// What screen readers are told of what happens elsewhere than where the keyboard is.
class TestAnnouncements : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aRefusedRoomIsToldEachTime();
    void aRoomRefusedByAStrokeOfKeysIsToldOnce();
    void aDrawnRoomIsNoRefusal();
    void anAddedLayoutIsToldAndOneThatExistsIsNot();
    void everyNewStatusIsToldOnce();
    void anErrorIsToldWithItsReasonOnce();
    void installingAgainTellsItAgain();

private:
    std::optional<Announcements> m_announcements;
};

void TestAnnouncements::init()
{
    TestCase::init();
    m_announcements.emplace();
    if (!m_announcements->canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
}

void TestAnnouncements::cleanup()
{
    m_announcements.reset();
}

void TestAnnouncements::aRefusedRoomIsToldEachTime()
{
    const Shown<PageRoomDesign> step(3);
    QWidget* editor = widgetOf(step.page, "roomEditor");
    // Three rooms leave the last two columns; the fourth room takes one cell of them.
    QTest::mouseClick(editor, Qt::LeftButton, {}, {editor->width() - 10, 10});
    QCOMPARE(Announcements::takeSaid(), QStringList());
    QTest::mouseClick(editor, Qt::LeftButton, {}, {editor->width() - 10, editor->height() - 10});
    QCOMPARE(Announcements::takeSaid(), QStringList{refusal});
    QTest::keyClick(editor, Qt::Key_Space);
    QCOMPARE(Announcements::takeSaid(), QStringList{refusal});
    QCOMPARE(step.page.findChild<QLabel*>(QStringLiteral("quietLine"))->text(), QString());
}

void TestAnnouncements::aRoomRefusedByAStrokeOfKeysIsToldOnce()
{
    const Shown<PageRoomDesign> step(3);
    QWidget* editor = widgetOf(step.page, "roomEditor");
    QTest::mouseClick(editor, Qt::LeftButton, {}, {editor->width() - 10, 10});
    QTest::keyClick(editor, Qt::Key_Down);
    QTest::keyPress(editor, Qt::Key_Shift);
    for (int i = 0; i < 3; ++i) {
        QTest::keyPress(editor, Qt::Key_Down, Qt::ShiftModifier);
    }
    QTest::keyRelease(editor, Qt::Key_Shift);
    QCOMPARE(Announcements::takeSaid(), QStringList{refusal});
}

void TestAnnouncements::aDrawnRoomIsNoRefusal()
{
    const Shown<PageRoomDesign> step(2);
    QWidget* editor = widgetOf(step.page, "roomEditor");
    QTest::mouseClick(editor, Qt::LeftButton, {}, {editor->width() - 10, 10});
    QTest::mouseClick(editor, Qt::LeftButton, {}, {editor->width() - 10, 10}); // takes it away
    QCOMPARE(Announcements::takeSaid(), QStringList());
}

void TestAnnouncements::anAddedLayoutIsToldAndOneThatExistsIsNot()
{
    const Shown<PageCreateScene> step(3);
    press(widgetOf(step.page, "addLayoutButton"));
    QCOMPARE(Announcements::takeSaid(), QStringList{QStringLiteral("Layout 1 was added: 1/2/3.")});
    {
        const DialogAnswerer box("Confirmation", pressing("OK"));
        press(widgetOf(step.page, "addLayoutButton"));
    }
    QCOMPARE(Announcements::takeSaid(), QStringList());
}

void TestAnnouncements::everyNewStatusIsToldOnce()
{
    const InstallHall step(quickHall(QStringLiteral("127.85.1.1"), 2, 0));
    QStringList labels;
    for (int row = 0; row < 2; ++row) {
        labels.append(step.list()->topLevelItem(row)->text(0));
    }
    Announcements::takeSaid();
    press(step.execute());
    QCOMPARE(Announcements::takeSaid(),
             QStringList({labels.at(0) + QStringLiteral(": Installing..."),
                          labels.at(1) + QStringLiteral(": Installing...")}));
    QTRY_COMPARE(step.statuses(), QStringLiteral("Done Done"));
    QStringList said = Announcements::takeSaid();
    const QString kept = said.takeLast();
    said.sort();
    QCOMPARE(said, QStringList({labels.at(0) + QStringLiteral(": Done"),
                                labels.at(1) + QStringLiteral(": Done")}));
    QVERIFY2(kept.startsWith(u"The hall is kept in "), qPrintable(kept));
}

void TestAnnouncements::anErrorIsToldWithItsReasonOnce()
{
    const InstallHall step(quickHall(QStringLiteral("127.85.1.11"), 1, 0));
    step.setFault(1, {.exchange = Exchange::Status, .kind = FaultKind::Status, .number = 500});
    const QString label = step.list()->topLevelItem(0)->text(0);
    press(step.execute());
    Announcements::takeSaid();
    QTRY_COMPARE(step.status(1), QStringLiteral("Error"));
    const QStringList said = Announcements::takeSaid();
    QCOMPARE(said.size(), 1);
    QVERIFY2(said.first().startsWith(QStringLiteral("Error. %1: Asking for").arg(label)),
             qPrintable(said.first()));
    QVERIFY(said.first().contains(QStringLiteral("the hub answered 500")));
    QVERIFY(
        said.first().endsWith(step.page.findChild<QLabel*>(QStringLiteral("quietLine"))->text()));
}

void TestAnnouncements::installingAgainTellsItAgain()
{
    const InstallHall step(quickHall(QStringLiteral("127.85.1.21"), 1, 0));
    step.setFault(
        1, {.exchange = Exchange::Status, .kind = FaultKind::Status, .number = 500, .times = 1});
    const QString label = step.list()->topLevelItem(0)->text(0);
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Error"));
    Announcements::takeSaid();
    press(step.execute());
    QTRY_COMPARE(step.status(1), QStringLiteral("Done"));
    QCOMPARE(
        Announcements::takeSaid().first(2),
        QStringList({label + QStringLiteral(": Installing..."), label + QStringLiteral(": Done")}));
}

TESSEL_TEST_MAIN(TestAnnouncements)
#include "tst_announcements.moc"
