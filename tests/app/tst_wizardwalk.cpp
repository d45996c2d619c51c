#include "devicequeries.h"
#include "layoutqueries.h"
#include "mainwindow.h"
#include "presetqueries.h"
#include "roomqueries.h"
#include "setqueries.h"
#include "testcase.h"
#include "wizarduser.h"

#include <QDir>
#include <QFile>
#include <QTest>

namespace {

const QString hubA = QStringLiteral("Hub-A");
const QString hubB = QStringLiteral("Hub-B");
const QString leftSpeaker = QStringLiteral("Left");
const QString rightSpeaker = QStringLiteral("Right");
const QString ceiling = QStringLiteral("Ceiling");
const QString noRoom = QStringLiteral("No Assign");

QString resumePath()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel/resume.dat");
}

int storedRoom(WizardUser& user, const QString& label)
{
    return deviceByAddress(user.doc, WizardUser::address(label))->roomNumber;
}

std::optional<DeviceSetInfo> stored(WizardUser& user, int set, int scene, const QString& label)
{
    return deviceSetRecord(user.doc, set, scene, WizardUser::address(label));
}

} // namespace

/// The whole wizard, walked through as installers do: not straight on.
class TestWizardWalk : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void forwardBackAndForwardAgainKeepsWhatEachStepStored();
    void comingBackKeepsWhatWasNotStored();
    void changedRoomsDiscardTheLayoutsAndDevicesKeepTheirRooms();
    void aRoomThatIsGoneTakesItsDevicesOut();
    void aRemovedRoomMovesTheHigherOnesUnderTheirDevices();
    void anUnchangedDrawingKeepsTheLayouts();
    void removingALayoutMovesRemovalsToTheSetsOfThoseNumbers();
    void resetOnEveryPage();
    void closedOnAnyPageTheWorkIsThereAgain_data();
    void closedOnAnyPageTheWorkIsThereAgain();
    void workSavedAfterGoingBackKeepsTheLaterSteps();
};

void TestWizardWalk::cleanup()
{
    QDir(QDir::homePath() + QStringLiteral("/AppData")).removeRecursively();
}

void TestWizardWalk::forwardBackAndForwardAgainKeepsWhatEachStepStored()
{
    WizardUser user;
    user.open();
    user.workThrough(8);
    const QList<QStringList> before = user.shownUpTo(8);
    QVERIFY(before.at(5).join(u'/').contains(QStringLiteral("|R|")));

    user.back(6);
    QCOMPARE(user.pageNumber(), 2);
    user.next(3);
    QCOMPARE(user.pageNumber(), 5);
    QCOMPARE(user.shownUpTo(5), before.mid(0, 5));
    // The sets are written anew on leaving them, and every speaker then stands left again.
    user.next();
    QVERIFY(!user.shown(6).join(u'/').contains(QStringLiteral("|R|")));
    user.next(2);
    QCOMPARE(user.shown(7), before.at(6));
    QCOMPARE(user.shown(8), before.at(7));
    QCOMPARE(presetName(user.doc, 4, 2), QStringLiteral("Hall 50%2"));
}

void TestWizardWalk::comingBackKeepsWhatWasNotStored()
{
    WizardUser user;
    user.open();
    user.workThrough(4);
    QVERIFY(layoutCount(user.doc) == 0);
    user.next();
    user.toggleInSet(1, leftSpeaker);
    user.back();
    QCOMPARE(user.shown(4).size(), 2);
    user.next();
    // Leaving the sets with Back stored nothing, and they are filled anew on the way forward.
    QVERIFY(!stored(user, 1, 1, leftSpeaker));
    QVERIFY(!user.shown(5).join(u'/').contains(QStringLiteral("removed")));

    user.toggleInSet(4, hubB);
    user.next();
    user.chooseSide(1, leftSpeaker, QStringLiteral("R"));
    user.next();
    user.namePreset(1, QStringLiteral("first"));
    user.next();
    user.back(2);
    // Coming from a later step a page is as it was left.
    QVERIFY(user.shown(6).join(u'/').contains(QStringLiteral("|R|")));
    user.next();
    QVERIFY(user.shown(7).contains(QStringLiteral("first")));
    QCOMPARE(stored(user, 1, 1, leftSpeaker)->speakerPosition, QStringLiteral("R"));
}

void TestWizardWalk::changedRoomsDiscardTheLayoutsAndDevicesKeepTheirRooms()
{
    WizardUser user;
    user.open();
    user.workThrough(8);
    user.back(6);
    user.draw({{2, 2}, {2, 3}}); // room 3 grows
    user.next();
    QCOMPARE(roomCells(user.doc, 3)->size(), 4);
    QCOMPARE(layoutCount(user.doc), 0);
    QCOMPARE(user.shownRoom(hubA), QStringLiteral("1"));
    QCOMPARE(user.shownRoom(hubB), QStringLiteral("2"));
    QCOMPARE(user.shownRoom(ceiling), QStringLiteral("3"));
    user.next();
    QVERIFY(user.shown(4).isEmpty());
    QVERIFY(!user.button("nextButton")->isEnabled());
    QCOMPARE(storedRoom(user, ceiling), 3);

    // The links are gone with the layouts: what is added first is every room by itself.
    user.addLayout();
    QVERIFY(user.shown(4).first().startsWith(QStringLiteral("1 1/2/3 ")));
}

void TestWizardWalk::aRoomThatIsGoneTakesItsDevicesOut()
{
    WizardUser user;
    user.open();
    user.workThrough(4);
    user.back(2);
    user.click({2, 1}); // room 3 is removed
    user.next();
    QCOMPARE(user.shownRoom(ceiling), noRoom);
    QCOMPARE(user.shownRoom(hubB), QStringLiteral("2"));
    QCOMPARE(storedRoom(user, ceiling), 3);
    user.next();
    QCOMPARE(storedRoom(user, ceiling), 0);
    QCOMPARE(storedRoom(user, hubB), 2);
    user.addLayout();
    user.next();
    QCOMPARE(user.shown(5).filter(ceiling).size(), 0);
}

void TestWizardWalk::aRemovedRoomMovesTheHigherOnesUnderTheirDevices()
{
    WizardUser user;
    user.open();
    user.workThrough(4);
    user.back(2);
    user.click({0, 0}); // rooms 2 and 3 become 1 and 2
    user.next();
    QCOMPARE(*roomCells(user.doc, 1), (Cells{{1, 0}, {1, 1}}));
    QCOMPARE(roomCount(user.doc), 2);
    QCOMPARE(user.shownRoom(hubA), QStringLiteral("1"));
    QCOMPARE(user.shownRoom(hubB), QStringLiteral("2"));
    QCOMPARE(user.shownRoom(ceiling), noRoom);
}

void TestWizardWalk::anUnchangedDrawingKeepsTheLayouts()
{
    WizardUser user;
    user.open();
    user.workThrough(5);
    user.back(3);
    user.next(2);
    QCOMPARE(user.shown(4).size(), 2);
    QCOMPARE(layoutCount(user.doc), 2);
}

void TestWizardWalk::removingALayoutMovesRemovalsToTheSetsOfThoseNumbers()
{
    WizardUser user;
    user.open();
    user.workThrough(5); // Hub-B is out of set 4: rooms 1 and 2 of layout 2
    user.toggleInSet(1, leftSpeaker);
    user.next();
    user.back(2);
    user.removeLayout(1);
    user.next();
    // Rooms 1 and 2 are set 1 of layout 1 now, and what was removed there is removed here.
    QCOMPARE(user.shown(5).filter(QStringLiteral("Left|")).filter(QStringLiteral("removed")).size(),
             1);
    QCOMPARE(user.shown(5).filter(QStringLiteral("Hub-B|")).filter(QStringLiteral("kept")).size(),
             1);
    // Two hubs in one room: not to be gone on with.
    QVERIFY(!user.button("nextButton")->isEnabled());
    user.toggleInSet(1, hubB);
    user.next();
    QVERIFY(stored(user, 1, 1, leftSpeaker)->remove);
    QVERIFY(stored(user, 1, 1, hubB)->remove);
    QVERIFY(!stored(user, 1, 1, hubA)->remove);
    QVERIFY(!stored(user, 2, 1, ceiling)->remove);
    QVERIFY(!stored(user, 4, 2, hubB));
}

void TestWizardWalk::resetOnEveryPage()
{
    WizardUser user;
    user.open();
    user.workThrough(7);
    user.press("resetButton");
    QCOMPARE(user.shown(7).count(QString()), 5);
    user.back();
    user.press("resetButton");
    QVERIFY(!user.shown(6).join(u'/').contains(QStringLiteral("|R|")));
    QCOMPARE(stored(user, 4, 2, rightSpeaker)->speakerPosition, QStringLiteral("R"));
    user.back();
    user.press("resetButton");
    QVERIFY(!user.shown(5).join(u'/').contains(QStringLiteral("removed")));
    QVERIFY(!user.button("nextButton")->isEnabled());
    QVERIFY(stored(user, 4, 2, hubB)->remove);
    user.back();
    user.press("resetButton");
    QVERIFY(user.shown(4).isEmpty());
    QCOMPARE(layoutCount(user.doc), 0);
    QVERIFY(!user.button("nextButton")->isEnabled());
    user.addLayout(); // the picker has kept its links
    QVERIFY(user.shown(4).first().startsWith(QStringLiteral("1 1+2/3 ")));
    user.back();
    user.press("resetButton");
    for (const QString& label : {hubA, hubB, leftSpeaker, rightSpeaker, ceiling}) {
        QCOMPARE(user.shownRoom(label), noRoom);
    }
    QCOMPARE(storedRoom(user, hubA), 1);
    QVERIFY(!user.button("nextButton")->isEnabled());
    user.back();
    QCOMPARE(storedRoom(user, hubA), 0);
    user.press("resetButton");
    QVERIFY(!user.button("nextButton")->isEnabled());
    QCOMPARE(roomCount(user.doc), 3);
}

void TestWizardWalk::closedOnAnyPageTheWorkIsThereAgain_data()
{
    QTest::addColumn<int>("number");
    for (int number = 2; number <= 8; ++number) {
        QTest::addRow("page %d", number) << number;
    }
}

void TestWizardWalk::closedOnAnyPageTheWorkIsThereAgain()
{
    QFETCH(const int, number);
    WizardUser user;
    user.open();
    user.workThrough(number);
    user.window->resize(800, 700);
    const QList<QStringList> before = user.shownUpTo(number);
    user.closeAndSave();

    WizardUser resumed;
    resumed.open();
    QCOMPARE(resumed.pageNumber(), number);
    QCOMPARE(resumed.shownUpTo(number), before);
    QCOMPARE(resumed.window->size(), QSize(800, 700));
    QVERIFY(!QFile::exists(resumePath()));
    if (number < 8) {
        QVERIFY(resumed.button("nextButton")->isEnabled());
        resumed.next();
        QCOMPARE(resumed.pageNumber(), number + 1);
    }
}

void TestWizardWalk::workSavedAfterGoingBackKeepsTheLaterSteps()
{
    WizardUser user;
    user.open();
    user.workThrough(8);
    const QList<QStringList> before = user.shownUpTo(8);
    user.back(2);
    user.closeAndSave();

    WizardUser resumed;
    resumed.open();
    QCOMPARE(resumed.pageNumber(), 6);
    QCOMPARE(resumed.shownUpTo(6), before.mid(0, 6));
    resumed.next(2);
    QCOMPARE(resumed.shown(7), before.at(6));
    QCOMPARE(resumed.shown(8), before.at(7));
}

TESSEL_TEST_MAIN(TestWizardWalk)
#include "tst_wizardwalk.moc"
