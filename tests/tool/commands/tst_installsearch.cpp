#include "cabletest.h"

#include <QTest>

namespace {

/// Two hubs that both know the password; of the second one this firmware.
QByteArray hallOf(const QByteArray& version = "2.1.0")
{
    return R"({"base": "10.54.1.1", "discovery": true, "discovery-listen": "10.54.255.255",
               "password": "secret7", "export-polls": 0,
               "hubs": [{"label": "Stage", "version": "2.1.0", "serial": "H1",
                         "mac": "02:00:00:00:00:01"},
                        {"label": "Gallery", "version": ")" +
           version + R"(", "serial": "H2", "mac": "02:00:00:00:00:02"}],
               "peripherals": []})";
}

/// Makes a file of these two hubs, the second one with this MAC address, and installs it.
QString installing(const QString& mac, const QString& options = {})
{
    return QStringLiteral(
               "set -e; cd \"$(mktemp -d)\"; umask 077; "
               "printf '10.54.1.1 secret7\\n10.54.1.2 secret7\\n' > passwords; "
               "cat > hall.json <<'END'\n"
               "{\"rooms\": [\"11112222\", \"11112222\", \"11112222\", \"11112222\", "
               "\"........\", \"........\", \"........\", \"........\"], \"devices\": ["
               "{\"address\": \"10.54.1.1\", \"label\": \"Stage\", \"model\": \"PX-HB\", "
               "\"mac\": \"02:00:00:00:00:01\", \"room\": 1}, "
               "{\"address\": \"10.54.1.2\", \"label\": \"Gallery\", \"model\": \"PX-HB\", "
               "\"mac\": \"%1\", \"room\": 2}], \"layouts\": [{\"rooms\": \"1/2\"}]}\n"
               "END\n"
               "tesselctl make hall.json -o hall.tessel; "
               "tesselctl install hall.tessel --passwords passwords --wait 1 %2")
        .arg(mac, options);
}

const QString galleryMac = QStringLiteral("02:00:00:00:00:02");

} // namespace

/// The search of `install` across a cable, with a simulated hall at its other end.
class TestInstallSearch : public CableTest
{
    Q_OBJECT

private Q_SLOTS:
    void hallThatIsThereIsInstalled();
    void deviceThatIsNotTheSameStopsEverything();
    void deviceThatTheWizardDoesNotTakeIsMissingWithItsReason();
    void deviceInAnotherNetworkIsMissingWithThatReason();
    void withoutTheSearchNothingIsMissed();
    void interfaceThatIsNotThereStopsEverything();
};

void TestInstallSearch::hallThatIsThereIsInstalled()
{
    const NetworkRun run = runBesideHall(hallOf(), installing(galleryMac));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
    QCOMPARE(run.output.count(QStringLiteral("Done")), 2);
}

void TestInstallSearch::deviceThatIsNotTheSameStopsEverything()
{
    const NetworkRun run = runBesideHall(hallOf(), installing(QStringLiteral("02:00:00:00:00:03")));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.output, QString());
    QVERIFY2(run.errors.contains(
                 QStringLiteral("tesselctl: hall.tessel: Gallery (10.54.1.2), PX-HB in room 2: a "
                                "device with another MAC address answers there, "
                                "02:00:00:00:00:02\n")),
             qPrintable(run.errors));
    QVERIFY2(run.errors.contains(QStringLiteral("tesselctl: nothing was installed")),
             qPrintable(run.errors));
    QVERIFY2(!run.errors.contains(u"started"), qPrintable(run.errors));
}

void TestInstallSearch::deviceThatTheWizardDoesNotTakeIsMissingWithItsReason()
{
    const NetworkRun run = runBesideHall(hallOf("1.0.0"), installing(galleryMac));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"firmware too old: has 1.0.0, needs 2"), qPrintable(run.errors));
    QCOMPARE(run.output, QString());
}

void TestInstallSearch::deviceInAnotherNetworkIsMissingWithThatReason()
{
    QString elsewhere = installing(QStringLiteral("02:00:00:00:00:03"));
    elsewhere.replace(QStringLiteral("10.54.1.2"), QStringLiteral("10.55.1.2"));
    const NetworkRun run = runBesideHall(hallOf(), elsewhere);
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.errors.contains(u"Gallery (10.55.1.2), PX-HB in room 2: no answer; 10.55.1.2 is "
                                 "not in the network of wizard (10.54.0.1/16)\n"),
             qPrintable(run.errors));
}

void TestInstallSearch::withoutTheSearchNothingIsMissed()
{
    const NetworkRun run = runBesideHall(
        hallOf(), installing(QStringLiteral("02:00:00:00:00:03"), QStringLiteral("--no-search")));
    QVERIFY2(run.exitCode == 0, qPrintable(run.errors));
}

void TestInstallSearch::interfaceThatIsNotThereStopsEverything()
{
    const NetworkRun run =
        runBesideHall(hallOf(), installing(galleryMac, QStringLiteral("--interface nowhere")));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.errors.contains(u"there is no wired interface \"nowhere\""),
             qPrintable(run.errors));
}

TESSEL_TEST_MAIN(TestInstallSearch)
#include "tst_installsearch.moc"
