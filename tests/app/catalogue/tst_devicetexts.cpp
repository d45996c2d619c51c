#include "devicetexts.h"
#include "testcase.h"

#include <QTest>

/// Addresses and names of devices, as people write them.
class TestDeviceTexts : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anAddressIsThatOfOneDevice_data();
    void anAddressIsThatOfOneDevice();
    void aMacAddressIsThatOfOneDevice_data();
    void aMacAddressIsThatOfOneDevice();
    void aNameIsOneToSixtyFourLettersDigitsAndHyphens_data();
    void aNameIsOneToSixtyFourLettersDigitsAndHyphens();
};

void TestDeviceTexts::anAddressIsThatOfOneDevice_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isAddress");
    QTest::addColumn<bool>("isDevices");
    const auto row = [](const char* text, bool isAddress, bool isDevices) {
        QTest::newRow(text) << QString::fromLatin1(text) << isAddress << isDevices;
    };
    row("192.168.0.10", true, true);
    row("1.0.0.0", true, true);
    row("223.255.255.254", true, true);
    row("0.0.0.0", true, false);
    row("0.1.2.3", true, false);
    row("224.0.0.1", true, false);
    row("255.255.255.255", true, false);
    row("192.168.0.256", false, false);
    row("192.168.0", false, false);
    row("192.168.0.010", false, false);
    row(" 192.168.0.10", false, false);
    row("192.168.0.10\n", false, false);
    row("fe80::1", false, false);
    row("", false, false);
}

void TestDeviceTexts::anAddressIsThatOfOneDevice()
{
    QFETCH(const QString, text);
    QTEST(isIpv4Address(text), "isAddress");
    QTEST(isDeviceAddress(text), "isDevices");
}

void TestDeviceTexts::aMacAddressIsThatOfOneDevice_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isMac");
    const auto row = [](const char* text, bool isMac) {
        QTest::newRow(text) << QString::fromLatin1(text) << isMac;
    };
    row("00:A0:DE:10:00:01", true);
    row("00:a0:de:10:00:01", true);
    row("00:00:00:00:00:00", false);
    row("FF:FF:FF:FF:FF:FF", false);
    row("01:00:5E:00:00:01", false);
    row("00-A0-DE-10-00-01", false);
    row("00:A0:DE:10:00", false);
    row("00:A0:DE:10:00:0G", false);
    row("", false);
}

void TestDeviceTexts::aMacAddressIsThatOfOneDevice()
{
    QFETCH(const QString, text);
    QTEST(isMacAddress(text), "isMac");
}

void TestDeviceTexts::aNameIsOneToSixtyFourLettersDigitsAndHyphens_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isName");
    QTest::newRow("a name") << QStringLiteral("Hub-1") << true;
    QTest::newRow("the longest") << QString(maxDeviceNameLength, u'a') << true;
    QTest::newRow("too long") << QString(maxDeviceNameLength + 1, u'a') << false;
    QTest::newRow("a blank") << QStringLiteral("Hub 1") << false;
    QTest::newRow("a letter of another alphabet") << QStringLiteral("B\u00fchne") << false;
    QTest::newRow("a line feed") << QStringLiteral("Hub\n") << false;
    QTest::newRow("none") << QString() << false;
}

void TestDeviceTexts::aNameIsOneToSixtyFourLettersDigitsAndHyphens()
{
    QFETCH(const QString, text);
    QTEST(isDeviceName(text), "isName");
}

TESSEL_TEST_MAIN(TestDeviceTexts)
#include "tst_devicetexts.moc"
