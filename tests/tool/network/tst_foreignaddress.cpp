#include "foreignaddress.h"
#include "testcase.h"

#include <QHostAddress>
#include <QTest>

namespace {

NicInfo nic(int index, const char* name, const QStringList& addresses, int prefix = 24)
{
    NicInfo info{QString::fromLatin1(name), index, QNetworkInterface::Ethernet, true, {}};
    for (const QString& address : addresses) {
        QNetworkAddressEntry entry;
        entry.setIp(QHostAddress(address));
        entry.setPrefixLength(prefix);
        info.addresses.append(entry);
    }
    return info;
}

const NicInfo loopback = nic(1, "lo", {QStringLiteral("127.0.0.1")}, 8);
const NicInfo wired = nic(2, "eth0", {QStringLiteral("192.168.0.5")});
const NicInfo wide = nic(3, "eth1", {QStringLiteral("fe80::1"), QStringLiteral("10.54.0.1")}, 16);
const NicInfo idle = nic(4, "eth2", {});

} // namespace

/// What is said of an address that lies in another network than this computer.
class TestForeignAddress : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void wordsOnAnAddress_data();
    void wordsOnAnAddress();
    void ofSeveralAddressesThoseInOtherNetworksAreNamed();
};

void TestForeignAddress::wordsOnAnAddress_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QList<NicInfo>>("interfaces");
    QTest::addColumn<QString>("words");
    const auto row = [](const char* title, const char* address, const QList<NicInfo>& interfaces,
                        const char* words) {
        QTest::newRow(title) << QString::fromLatin1(address) << interfaces
                             << QString::fromLatin1(words);
    };
    row("the same network", "192.168.0.40", {loopback, wired}, "");
    row("another one", "192.168.7.40", {loopback, wired},
        "192.168.7.40 is not in the network of eth0 (192.168.0.5/24)");
    row("one of two", "10.54.200.1", {wired, wide}, "");
    row("none of two", "192.168.7.40", {wired, wide},
        "192.168.7.40 is in none of the networks of eth0 (192.168.0.5/24), eth1 (10.54.0.1/16)");
    row("the loop", "127.0.1.1", {loopback, wired}, "");
    row("no cable", "192.168.7.40", {loopback, idle}, "");
}

void TestForeignAddress::wordsOnAnAddress()
{
    QFETCH(const QString, address);
    QFETCH(const QList<NicInfo>, interfaces);
    QTEST(foreignWords(address, sidesOf(interfaces)), "words");
}

void TestForeignAddress::ofSeveralAddressesThoseInOtherNetworksAreNamed()
{
    QCOMPARE(
        foreignWords(QStringList{QStringLiteral("192.168.0.9"), QStringLiteral("10.0.0.9")},
                     sidesOf({wired})),
        QStringList{QStringLiteral("10.0.0.9 is not in the network of eth0 (192.168.0.5/24)")});
}

TESSEL_TEST_MAIN(TestForeignAddress)
#include "tst_foreignaddress.moc"
