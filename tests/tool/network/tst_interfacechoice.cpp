#include "interfacechoice.h"
#include "testcase.h"

#include <QHostAddress>
#include <QTest>

namespace {

NicInfo nic(int index, const char* name, const char* address,
            QNetworkInterface::InterfaceType type = QNetworkInterface::Ethernet)
{
    NicInfo info{QString::fromLatin1(name), index, type, true, {}};
    if (*address != '\0') {
        QNetworkAddressEntry entry;
        entry.setIp(QHostAddress(QString::fromLatin1(address)));
        entry.setPrefixLength(24);
        info.addresses.append(entry);
    }
    return info;
}

const NicInfo loopback = nic(1, "lo", "127.0.0.1", QNetworkInterface::Loopback);
const NicInfo wireless = nic(2, "wlan0", "10.0.0.7", QNetworkInterface::Wifi);
const NicInfo wired = nic(3, "eth0", "10.0.0.2");
const NicInfo elsewhere = nic(4, "eth1", "10.0.1.2");
const NicInfo idle = nic(5, "eth2", "");

} // namespace

/// Which interface is searched on, and what is said when none can be.
class TestInterfaceChoice : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void choiceAmongInterfaces_data();
    void choiceAmongInterfaces();
    void computerWithoutWiredAddressReachesNobody();
};

void TestInterfaceChoice::choiceAmongInterfaces_data()
{
    QTest::addColumn<QList<NicInfo>>("interfaces");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QStringList>("rivals");
    const auto row = [](const char* title, const QList<NicInfo>& interfaces, const char* name,
                        const char* chosen, const char* fault, const QStringList& rivals = {}) {
        QTest::newRow(title) << interfaces << QString::fromLatin1(name)
                             << QString::fromLatin1(chosen) << QString::fromLatin1(fault) << rivals;
    };
    row("the only wired one", {loopback, wired}, "", "eth0", "");
    row("idle ones beside it", {wired, idle}, "", "eth0", "");
    row("named among several", {wired, elsewhere}, "eth1", "eth1", "");
    row("none wired", {loopback, wireless}, "", "", "this computer has no wired interface");
    row("none with an address", {loopback, idle}, "", "",
        "no wired interface has an IPv4 address: eth2");
    row("the named one has no address", {wired, idle}, "eth2", "", "eth2 has no IPv4 address");
    row("several", {wired, elsewhere, idle}, "", "",
        "there are several wired interfaces, name one with --interface: eth0, eth1");
    row("no such name", {wired, idle}, "eth7", "",
        "there is no wired interface \"eth7\"; there are: eth0, eth2");
    row("a wireless name", {wired, wireless}, "wlan0", "",
        "there is no wired interface \"wlan0\"; there are: eth0");
    row("another one in the same network", {loopback, wireless, wired, elsewhere}, "eth0", "eth0",
        "", {QStringLiteral("wlan0")});
}

void TestInterfaceChoice::choiceAmongInterfaces()
{
    QFETCH(const QList<NicInfo>, interfaces);
    QFETCH(const QString, name);
    const InterfaceChoice choice = chooseInterface(interfaces, name);
    QTEST(choice.row ? choice.row->name : QString(), "chosen");
    QTEST(choice.fault, "fault");
    QTEST(choice.rivals, "rivals");
}

void TestInterfaceChoice::computerWithoutWiredAddressReachesNobody()
{
    QCOMPARE(addressFault({loopback, wireless}),
             QStringLiteral("this computer has no wired interface"));
    QCOMPARE(addressFault({loopback, idle}),
             QStringLiteral("no wired interface has an IPv4 address: eth2"));
    QCOMPARE(addressFault({wired, idle}), QString());
    QCOMPARE(addressFault({wired, elsewhere}), QString());
}

TESSEL_TEST_MAIN(TestInterfaceChoice)
#include "tst_interfacechoice.moc"
