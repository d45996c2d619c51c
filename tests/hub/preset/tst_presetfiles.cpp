#include "presetfiles.h"
#include "records.h"
#include "testcase.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QTest>

namespace {

const QString hubAddress = QStringLiteral("192.168.0.1");
const QString zeroMac = QStringLiteral("00:00:00:00:00:00");

QString addressOf(int number)
{
    return QStringLiteral("192.168.0.%1").arg(number);
}

QString macOf(int number)
{
    return QStringLiteral("00:a0:de:00:00:%1").arg(number, 2, 16, QLatin1Char('0'));
}

/// The records of one hall: the hub is number 1, everything else a peripheral of its set.
struct Hall
{
    QList<DeviceData> devices;
    QList<DeviceSetInfo> sets;

    void addDevice(int number, const QString& model)
    {
        DeviceData device;
        device.ipAddress = addressOf(number);
        device.macAddress = macOf(number);
        device.modelName = model;
        device.label = QStringLiteral("device %1").arg(number);
        devices.append(device);
    }

    void addMember(int number, int scene = 1, int set = 1, bool remove = false,
                   const QString& position = QStringLiteral("L"))
    {
        sets.append({set, scene, addressOf(number), remove, position});
    }

    DeviceLookup lookup() const
    {
        return [this](const QString& address) -> const DeviceData* {
            for (const DeviceData& device : devices) {
                if (device.ipAddress == address) {
                    return &device;
                }
            }
            return nullptr;
        };
    }

    std::optional<BuiltHubFile> hubFile(int scene = 1) const
    {
        return buildHubFile(sets, lookup(), hubAddress, scene);
    }

    std::optional<QStringList> peripherals(int scene = 1) const
    {
        return listPeripherals(sets, lookup(), hubAddress, scene);
    }
};

/// A hub and `peripherals` microphones, all in set 1 of layout 1.
Hall hallWith(int peripherals)
{
    Hall hall;
    hall.addDevice(1, QStringLiteral("PX-HB"));
    hall.addMember(1);
    for (int number = 2; number <= peripherals + 1; ++number) {
        hall.addDevice(number, QStringLiteral("PX-DL"));
        hall.addMember(number);
    }
    return hall;
}

QDomElement config(const QByteArray& file)
{
    QDomDocument document;
    if (!document.setContent(file) || document.documentElement().tagName() != u"provisioning") {
        return {};
    }
    return document.documentElement().firstChildElement(QStringLiteral("config"));
}

QString mac(const QByteArray& file, int slot)
{
    return config(file).attribute(QStringLiteral("peripheral.mac-addr%1").arg(slot));
}

QString position(const QByteArray& file, int slot)
{
    return config(file).attribute(QStringLiteral("peripheral.position%1").arg(slot));
}

QStringList attributeNames(const QByteArray& file)
{
    static const QRegularExpression name(QStringLiteral(" ([a-z0-9.-]+)="));
    QStringList names;
    auto matches = name.globalMatch(QString::fromUtf8(file));
    while (matches.hasNext()) {
        names.append(matches.next().captured(1));
    }
    return names;
}

} // namespace

class TestPresetFiles : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hubWithoutPeripheralsGetsZeroMacsAndPositionsOne();
    void hubFileNamesItsPeripheralsInRecordOrder();
    void hubFileHasTheListedAttributesInTheListedOrder();
    void hubFileOfThirtyPeripheralsHoldsTheFirstTwentyFour();
    void everyPositionButLeftIsTwo();
    void removedPeripheralIsMissingFromThatLayoutOnly();
    void removedHubHasAnEmptyFileAndNoPeripherals();
    void otherSetsAndLayoutsDoNotMix();
    void secondHubOfTheSetIsAPeripheralInTheFileButNotInTheList();
    void onlyTheExactHubModelIsLeftOutOfTheList();
    void hubOutsideEverySetHasNothing_data();
    void hubOutsideEverySetHasNothing();
    void firstRecordOfTheHubCounts();
    void hubNameIsSentOnlyAfterAChange();
    void unknownMemberHasAnEmptyMacAndNoFile();
    void hubWithoutARecordStillHasAFile();
    void peripheralFileWithoutChangedLabelIsEmpty();
    void peripheralNameMode_data();
    void peripheralNameMode();
    void namesReadBackEqual_data();
    void namesReadBackEqual();
    void sameRecordsGiveTheSameBytes();
};

void TestPresetFiles::hubWithoutPeripheralsGetsZeroMacsAndPositionsOne()
{
    const auto file = hallWith(0).hubFile();
    QVERIFY(file);
    for (int slot = 1; slot <= 24; ++slot) {
        QCOMPARE(mac(file->content, slot), zeroMac);
        QCOMPARE(position(file->content, slot), QStringLiteral("1"));
    }
    QCOMPARE(config(file->content).attributes().size(), 48);
}

void TestPresetFiles::hubFileNamesItsPeripheralsInRecordOrder()
{
    const Hall hall = hallWith(3);
    const auto file = hall.hubFile();
    QVERIFY(file);
    QCOMPARE(file->deviceSetNumber, 1);
    QCOMPARE(mac(file->content, 1), macOf(2));
    QCOMPARE(mac(file->content, 2), macOf(3));
    QCOMPARE(mac(file->content, 3), macOf(4));
    QCOMPARE(mac(file->content, 4), zeroMac);
    QCOMPARE(hall.peripherals(), QStringList({addressOf(2), addressOf(3), addressOf(4)}));
}

void TestPresetFiles::hubFileHasTheListedAttributesInTheListedOrder()
{
    Hall hall = hallWith(2);
    hall.devices[0].labelModified = true;
    QStringList expected;
    for (int slot = 1; slot <= 24; ++slot) {
        expected.append(QStringLiteral("peripheral.mac-addr%1").arg(slot));
    }
    for (int slot = 1; slot <= 24; ++slot) {
        expected.append(QStringLiteral("peripheral.position%1").arg(slot));
    }
    expected << QStringLiteral("sys.systemname") << QStringLiteral("sys.systemname-mode");
    QCOMPARE(attributeNames(hall.hubFile()->content), expected);
    QVERIFY(hall.hubFile()->content.startsWith("<provisioning>\n <config peripheral.mac-addr1="));
    QVERIFY(hall.hubFile()->content.endsWith("/>\n</provisioning>\n"));
}

void TestPresetFiles::hubFileOfThirtyPeripheralsHoldsTheFirstTwentyFour()
{
    const Hall hall = hallWith(30);
    const QByteArray file = hall.hubFile()->content;
    QCOMPARE(mac(file, 1), macOf(2));
    QCOMPARE(mac(file, 24), macOf(25));
    QCOMPARE(config(file).attributes().size(), 48);
    QCOMPARE(hall.peripherals()->size(), 30);
}

void TestPresetFiles::everyPositionButLeftIsTwo()
{
    Hall hall = hallWith(4);
    hall.sets[2].speakerPosition = QStringLiteral("R");
    hall.sets[3].speakerPosition = QStringLiteral("l");
    hall.sets[4].speakerPosition = QString();
    const QByteArray file = hall.hubFile()->content;
    QCOMPARE(position(file, 1), QStringLiteral("1"));
    QCOMPARE(position(file, 2), QStringLiteral("2"));
    QCOMPARE(position(file, 3), QStringLiteral("2"));
    QCOMPARE(position(file, 4), QStringLiteral("2"));
    QCOMPARE(position(file, 5), QStringLiteral("1"));
}

void TestPresetFiles::removedPeripheralIsMissingFromThatLayoutOnly()
{
    Hall hall = hallWith(2);
    hall.addMember(1, 2, 2);
    hall.addMember(2, 2, 2, true);
    hall.addMember(3, 2, 2);
    QCOMPARE(mac(hall.hubFile(2)->content, 1), macOf(3));
    QCOMPARE(mac(hall.hubFile(2)->content, 2), zeroMac);
    QCOMPARE(hall.peripherals(2), QStringList{addressOf(3)});
    QCOMPARE(mac(hall.hubFile(1)->content, 1), macOf(2));
    QCOMPARE(hall.peripherals(1), QStringList({addressOf(2), addressOf(3)}));
}

void TestPresetFiles::removedHubHasAnEmptyFileAndNoPeripherals()
{
    Hall hall = hallWith(2);
    hall.sets[0].remove = true;
    hall.sets[1].speakerPosition = QStringLiteral("R");
    QCOMPARE(hall.hubFile()->content, hallWith(0).hubFile()->content);
    QVERIFY(hall.peripherals());
    QVERIFY(hall.peripherals()->isEmpty());
}

void TestPresetFiles::otherSetsAndLayoutsDoNotMix()
{
    Hall hall = hallWith(1);
    hall.addDevice(3, QStringLiteral("PX-DL"));
    hall.addMember(3, 1, 2);
    hall.addMember(3, 2, 1);
    QCOMPARE(hall.peripherals(), QStringList{addressOf(2)});
    QCOMPARE(mac(hall.hubFile()->content, 2), zeroMac);
}

void TestPresetFiles::secondHubOfTheSetIsAPeripheralInTheFileButNotInTheList()
{
    Hall hall = hallWith(2);
    hall.devices[1].modelName = QStringLiteral("PX-HB");
    QCOMPARE(mac(hall.hubFile()->content, 1), macOf(2));
    QCOMPARE(mac(hall.hubFile()->content, 2), macOf(3));
    QCOMPARE(hall.peripherals(), QStringList{addressOf(3)});
}

void TestPresetFiles::onlyTheExactHubModelIsLeftOutOfTheList()
{
    Hall hall = hallWith(2);
    hall.devices[1].modelName = QStringLiteral("PX-HB2");
    hall.devices[2].modelName = QStringLiteral("px-hb");
    QCOMPARE(hall.peripherals(), QStringList({addressOf(2), addressOf(3)}));
}

void TestPresetFiles::hubOutsideEverySetHasNothing_data()
{
    QTest::addColumn<int>("deviceSetNumber");
    QTest::addColumn<int>("scene");
    QTest::newRow("no record for the layout") << 1 << 2;
    QTest::newRow("the record says set 0") << 0 << 1;
}

void TestPresetFiles::hubOutsideEverySetHasNothing()
{
    QFETCH(const int, deviceSetNumber);
    QFETCH(const int, scene);
    Hall hall = hallWith(1);
    hall.sets[0].deviceSetNumber = deviceSetNumber;
    QVERIFY(!hall.hubFile(scene));
    QVERIFY(!hall.peripherals(scene));
}

void TestPresetFiles::firstRecordOfTheHubCounts()
{
    Hall hall = hallWith(1);
    hall.addMember(1, 1, 2);
    QCOMPARE(hall.hubFile()->deviceSetNumber, 1);
    hall.sets.move(2, 0);
    QCOMPARE(hall.hubFile()->deviceSetNumber, 2);
    QVERIFY(hall.peripherals()->isEmpty());
}

void TestPresetFiles::hubNameIsSentOnlyAfterAChange()
{
    Hall hall = hallWith(1);
    QVERIFY(!config(hall.hubFile()->content).hasAttribute(QStringLiteral("sys.systemname")));
    hall.devices[0].labelModified = true;
    const QDomElement element = config(hall.hubFile()->content);
    QCOMPARE(element.attribute(QStringLiteral("sys.systemname")), QStringLiteral("device 1"));
    QCOMPARE(element.attribute(QStringLiteral("sys.systemname-mode")), QStringLiteral("0"));
}

void TestPresetFiles::unknownMemberHasAnEmptyMacAndNoFile()
{
    Hall hall = hallWith(2);
    hall.devices.removeAt(1);
    const QByteArray file = hall.hubFile()->content;
    QVERIFY(config(file).hasAttribute(QStringLiteral("peripheral.mac-addr1")));
    QCOMPARE(mac(file, 1), QString());
    QCOMPARE(mac(file, 2), macOf(3));
    QCOMPARE(hall.peripherals(), QStringList({addressOf(2), addressOf(3)}));
    QVERIFY(!buildPeripheralFile(hall.lookup(), addressOf(2)));
}

void TestPresetFiles::hubWithoutARecordStillHasAFile()
{
    Hall hall = hallWith(1);
    hall.devices.removeFirst();
    QVERIFY(hall.hubFile());
    QCOMPARE(mac(hall.hubFile()->content, 1), macOf(2));
}

void TestPresetFiles::peripheralFileWithoutChangedLabelIsEmpty()
{
    const Hall hall = hallWith(1);
    const auto file = buildPeripheralFile(hall.lookup(), addressOf(2));
    QVERIFY(file);
    QCOMPARE(file->content, QByteArray("<provisioning>\n <config/>\n</provisioning>\n"));
    QCOMPARE(file->macAddress, macOf(2));
}

void TestPresetFiles::peripheralNameMode_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QByteArray>("mode");
    QTest::newRow("access point") << QStringLiteral("PX-NDE") << QByteArray("1");
    QTest::newRow("longer access point name") << QStringLiteral("PX-NDE-W8") << QByteArray("1");
    QTest::newRow("microphone") << QStringLiteral("PX-DL") << QByteArray("0");
    QTest::newRow("lower case") << QStringLiteral("px-nde") << QByteArray("0");
    QTest::newRow("speaker") << QStringLiteral("DSK4M") << QByteArray("0");
}

void TestPresetFiles::peripheralNameMode()
{
    QFETCH(const QString, model);
    QFETCH(const QByteArray, mode);
    Hall hall = hallWith(1);
    hall.devices[1].modelName = model;
    hall.devices[1].labelModified = true;
    QCOMPARE(buildPeripheralFile(hall.lookup(), addressOf(2))->content,
             "<provisioning>\n <config sys.systemname=\"device 2\" sys.systemname-mode=\"" + mode +
                 "\"/>\n</provisioning>\n");
}

void TestPresetFiles::namesReadBackEqual_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("umlaut") << QStringLiteral("Süd-Höhe");
    QTest::newRow("quotes and markup") << QStringLiteral(R"(<"Saal" & 'Bühne'>)");
    QTest::newRow("percent") << QStringLiteral("50%2 %1");
    QTest::newRow("empty") << QStringLiteral("");
}

void TestPresetFiles::namesReadBackEqual()
{
    QFETCH(const QString, name);
    Hall hall = hallWith(1);
    for (DeviceData& device : hall.devices) {
        device.label = name;
        device.labelModified = true;
    }
    const QString key = QStringLiteral("sys.systemname");
    const auto peripheral = buildPeripheralFile(hall.lookup(), addressOf(2));
    QCOMPARE(config(hall.hubFile()->content).attribute(key), name);
    QCOMPARE(config(peripheral->content).attribute(key), name);
    QVERIFY(config(peripheral->content).hasAttribute(key));
}

void TestPresetFiles::sameRecordsGiveTheSameBytes()
{
    QCOMPARE(hallWith(24).hubFile()->content, hallWith(24).hubFile()->content);
}

TESSEL_TEST_MAIN(TestPresetFiles)
#include "tst_presetfiles.moc"
