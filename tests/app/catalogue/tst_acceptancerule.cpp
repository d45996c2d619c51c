#include "acceptancerule.h"
#include "testcase.h"

#include <QTest>

class TestAcceptanceRule : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void modelAndFirmware_data();
    void modelAndFirmware();
};

void TestAcceptanceRule::modelAndFirmware_data()
{
    QTest::addColumn<QString>("version");
    QTest::addColumn<QString>("model");
    QTest::addColumn<bool>("accepted");

    const auto row = [](const char* name, const char* version, const char* model, bool accepted) {
        QTest::newRow(name) << QString::fromLatin1(version) << QString::fromLatin1(model)
                            << accepted;
    };
    row("a leading V is skipped", "V2.0.1", "PX-HB", true);
    row("1.9.9 is too old for a hub", "1.9.9", "PX-HB", false);
    row("a bare 2 is enough for a hub", "2", "PX-HB", true);
    row("an access point is accepted from 1.9.3", "1.9.3", "PX-NDE", true);
    row("an access point of 1.9.2 is refused", "1.9.2", "PX-NDE", false);
    row("an access point of 1.8 is refused", "1.8", "PX-NDE", false);
    row("an access point of 1.8.9 is refused", "1.8.9", "PX-NDE", false);
    row("an access point of 1.10.0 is accepted", "1.10.0", "PX-NDE", true);
    row("an access point of 2.0.0 is accepted", "2.0.0", "PX-NDE", true);
    row("an access point of 0.9.9 is refused", "0.9.9", "PX-NDE", false);
    row("an access point variant follows the access point rule", "1.9.3", "PX-NDE8", true);
    row("a bare 2 has fewer than three parts", "2", "PX-NDE", false);
    row("an access point with an unreadable patch is refused", "2.0.x", "PX-NDE", false);
    row("an access point with an unreadable minor is refused", "2..0", "PX-NDE", false);
    row("a speaker of 2.1 is accepted", "2.1", "LQA4-08S", true);
    row("a speaker of 1.9 is refused", "1.9", "LQA4-08S", false);
    row("a longer speaker name is another model", "2.1", "LQA4-08SX", false);
    row("the second speaker is known", "2.0", "DSK4M", true);
    row("the controller is known", "2.0", "PNB-QE7", true);
    row("an unknown model is refused", "9.9.9", "XY-1", false);
    row("a lower-case model is another model", "2.0", "px-hb", false);
    row("an empty version is refused", "", "PX-HB", false);
    row("an empty model is refused", "2.0", "", false);
    row("a version without digits is refused", "beta", "PX-HB", false);
    row("digits followed by letters are no number", "2a.0", "PX-HB", false);
    row("a version beyond an int is refused", "99999999999.0", "PX-HB", false);
}

void TestAcceptanceRule::modelAndFirmware()
{
    QFETCH(const QString, version);
    QFETCH(const QString, model);
    QTEST(isDeviceAccepted(version, model), "accepted");
}

TESSEL_TEST_MAIN(TestAcceptanceRule)
#include "tst_acceptancerule.moc"
