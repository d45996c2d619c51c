#include "loopbacksearch.h"
#include "testcase.h"

#include <QElapsedTimer>
#include <QTest>

class TestHubPairing : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aLoneHubIsReportedAThousandMillisecondsAfterItsIdentity();
    void twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac_data();
    void twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac();
    void twoAddressesWithEqualMacsAreNotReported();
    void aThirdAddressIsOnlyLogged();
    void aSecondAddressAfterTheReportChangesNothing();
    void aModelThatIsNotInCapitalsIsNoHub();
    void aReplyWithoutABodyIsNotTreatedAsAHub();
};

void TestHubPairing::aLoneHubIsReportedAThousandMillisecondsAfterItsIdentity()
{
    SimpleDevice hub(address(5), "PX-HB2", "H5", 1);
    QVERIFY(hub.open());
    Search search;
    QElapsedTimer sinceReply;
    sinceReply.start();
    answer(hub);
    QTRY_VERIFY(search.isIdentified(address(5)));
    QCOMPARE(search.spy.size(), 0);
    QTRY_COMPARE(search.reported(), QStringList{address(5)});
    QVERIFY(sinceReply.elapsed() >= 1000);
}

void TestHubPairing::twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac_data()
{
    QTest::addColumn<int>("firstMac");
    QTest::addColumn<int>("secondMac");
    QTest::addColumn<QString>("expected");
    QTest::newRow("the second address has the lower MAC") << 2 << 1 << address(11);
    QTest::newRow("the first address has the lower MAC") << 1 << 2 << address(10);
    QTest::newRow("0x9F is lower than 0xA0") << 0xA0 << 0x9F << address(11);
}

void TestHubPairing::twoAddressesOfAHubWithinASecondAreReportedOnceAsTheLowerMac()
{
    QFETCH(const int, firstMac);
    QFETCH(const int, secondMac);
    QFETCH(const QString, expected);
    SimpleDevice first(address(10), "PX-HB", "H10", char(firstMac));
    SimpleDevice second(address(11), "PX-HB", "H10", char(secondMac));
    SimpleDevice later(address(12), "PX-HB", "H12", 3);
    QVERIFY(first.open() && second.open() && later.open());
    Search search;
    answer(first);
    QTRY_VERIFY(search.isIdentified(address(10)));
    answer(second);
    QTRY_COMPARE(search.reported(), QStringList{expected});

    // Once a later lone hub's second is over, that of the pair is too.
    answer(later);
    QTRY_COMPARE(search.reported(), (QStringList{expected, address(12)}));
}

void TestHubPairing::twoAddressesWithEqualMacsAreNotReported()
{
    SimpleDevice first(address(13), "PX-HB", "H13", 1);
    SimpleDevice second(address(14), "PX-HB", "H13", 1);
    SimpleDevice later(address(15), "PX-HB", "H15", 2);
    QVERIFY(first.open() && second.open() && later.open());
    Search search;
    answer(first);
    answer(second);
    QTRY_VERIFY(search.isIdentified(address(13)) && search.isIdentified(address(14)));
    answer(later);
    QTRY_COMPARE(search.reported(), QStringList{address(15)});
}

void TestHubPairing::aThirdAddressIsOnlyLogged()
{
    SimpleDevice first(address(16), "PX-HB", "H16", 3);
    SimpleDevice second(address(17), "PX-HB", "H16", 2);
    SimpleDevice third(address(18), "PX-HB", "H16", 1);
    QVERIFY(first.open() && second.open() && third.open());
    Search search;
    answer(first);
    QTRY_VERIFY(search.isIdentified(address(16)));
    answer(second);
    QTRY_COMPARE(search.reported(), QStringList{address(17)});
    QTest::ignoreMessage(QtDebugMsg, "[???]PX-HB:Serial No.=H16");
    answer(third);
    QTRY_VERIFY(search.isIdentified(address(18)));
    QCOMPARE(search.reported(), QStringList{address(17)});
}

void TestHubPairing::aSecondAddressAfterTheReportChangesNothing()
{
    SimpleDevice first(address(19), "PX-HB", "H19", 3);
    SimpleDevice second(address(20), "PX-HB", "H19", 2);
    SimpleDevice third(address(21), "PX-HB", "H19", 1);
    QVERIFY(first.open() && second.open() && third.open());
    Search search;
    answer(first);
    QTRY_COMPARE(search.reported(), QStringList{address(19)});
    answer(second);
    QTRY_VERIFY(search.isIdentified(address(20)));
    QTest::ignoreMessage(QtDebugMsg, "[???]PX-HB:Serial No.=H19");
    answer(third);
    QTRY_VERIFY(search.isIdentified(address(21)));
    QCOMPARE(search.reported(), QStringList{address(19)});
}

void TestHubPairing::aModelThatIsNotInCapitalsIsNoHub()
{
    SimpleDevice device(address(22), "px-hb", "S22", 1);
    QVERIFY(device.open());
    Search search;
    answer(device);
    QTRY_VERIFY(search.isIdentified(address(22)));
    QCOMPARE(search.reported(), QStringList{address(22)});
}

void TestHubPairing::aReplyWithoutABodyIsNotTreatedAsAHub()
{
    SimpleDevice device(address(23), "PX-HB", "S23", 1);
    QVERIFY(device.open());
    Search search;
    ScriptedReply reply = device.reply();
    reply.bodyIndicator = QByteArray(2, '\0');
    device.send(reply.bytes(), wizard);
    QTRY_VERIFY(search.isIdentified(address(23)));
    QCOMPARE(search.reported(), QStringList{address(23)});
    QCOMPARE(search.detector.deviceInfo(address(23)).modelName, QString());
}

TESSEL_TEST_MAIN(TestHubPairing)
#include "tst_hubpairing.moc"
