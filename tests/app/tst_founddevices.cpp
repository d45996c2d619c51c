#include "devicequeries.h"
#include "loopbacksearch.h"
#include "mainwindow.h"
#include "roomqueries.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "windowevents.h"

#include <QDir>
#include <QTcpServer>
#include <QTest>

namespace {

const QString hubAddress = QStringLiteral("127.61.1.1");
const QString microphoneAddress = QStringLiteral("127.61.1.2");
const QString strangerAddress = QStringLiteral("127.61.1.3");

QString resumePath()
{
    return QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel/resume.dat");
}

/// The window with the loopback interface already chosen, searching.
struct SearchingWizard
{
    SearchingWizard()
    {
        setNicIndex(doc, loopbackIndex());
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
    }

    void search() const
    {
        StartDiscoveryEvent event;
        QCoreApplication::sendEvent(window.get(), &event);
    }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

} // namespace

/// The road of a device from the network into the document.
class TestFoundDevices : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void withAnInterfaceHandedOverNothingIsSearched();
    void foundDevicesAreEnteredIntoTheDocument();
    void devicesThatTheDocumentRefusesStayOut();
    void aDeviceThatWasHandedOverIsNotEnteredAgain();
    void savedWorkMeetsTheDevicesFoundMeanwhile();
};

void TestFoundDevices::cleanup()
{
    QDir(QDir::homePath() + QStringLiteral("/AppData")).removeRecursively();
}

void TestFoundDevices::withAnInterfaceHandedOverNothingIsSearched()
{
    const SearchingWizard installer;
    QCoreApplication::processEvents();
    QVERIFY(!installer.window->findChild<DeviceDetector*>());
    QVERIFY(!QApplication::activeModalWidget());
}

void TestFoundDevices::foundDevicesAreEnteredIntoTheDocument()
{
    SimpleDevice hub(hubAddress, "PX-HB", "S1", 1);
    SimpleDevice microphone(microphoneAddress, "PX-DL", "S2", 2);
    QVERIFY(hub.open() && microphone.open());
    SearchingWizard installer;
    installer.search();
    answer(hub);
    answer(microphone);
    // The hub's second address is waited for.
    QTRY_COMPARE(deviceCount(installer.doc), 1);
    QCOMPARE(deviceAt(installer.doc, 0)->ipAddress, microphoneAddress);
    QTRY_COMPARE(deviceCount(installer.doc), 2);
    const DeviceEntry found = *deviceAt(installer.doc, 1);
    const DetectedDevice known =
        installer.window->findChild<DeviceDetector*>()->deviceInfo(hubAddress);
    QCOMPARE(found.ipAddress, hubAddress);
    QCOMPARE(found.modelName, QStringLiteral("PX-HB"));
    QCOMPARE(found.label, QStringLiteral("Device ") + hubAddress);
    QCOMPARE(found.version, QStringLiteral("V2.0.1"));
    QCOMPARE(found.macAddress, known.macAddress);
    QCOMPARE(found.roomNumber, 0);

    // Searching again goes on with the same detector.
    installer.search();
    QCOMPARE(installer.window->findChildren<DeviceDetector*>().size(), 1);
}

void TestFoundDevices::devicesThatTheDocumentRefusesStayOut()
{
    SimpleDevice stranger(strangerAddress, "XY-1", "S3", 3);
    SimpleDevice microphone(microphoneAddress, "PX-DL", "S2", 2);
    QVERIFY(stranger.open() && microphone.open());
    SearchingWizard installer;
    installer.search();
    const auto* detector = installer.window->findChild<DeviceDetector*>();
    answer(stranger);
    QTRY_VERIFY(!detector->deviceInfo(strangerAddress).serialNumber.isEmpty());
    answer(microphone);
    QTRY_COMPARE(deviceCount(installer.doc), 1);
    QCOMPARE(deviceAt(installer.doc, 0)->ipAddress, microphoneAddress);
}

void TestFoundDevices::aDeviceThatWasHandedOverIsNotEnteredAgain()
{
    SimpleDevice hub(hubAddress, "PX-HB", "S1", 1);
    SimpleDevice microphone(microphoneAddress, "PX-DL", "S2", 2);
    QVERIFY(hub.open() && microphone.open());
    SearchingWizard installer;
    // The search type and the password are what the web API needs; the network knows neither.
    const FoundDevice handedOver{.label = QStringLiteral("Handed"),
                                 .modelName = QStringLiteral("PX-DL"),
                                 .version = QStringLiteral("2.1.0"),
                                 .ipAddress = microphoneAddress,
                                 .macAddress = QStringLiteral("a0:00:00:01"),
                                 .searchType = QStringLiteral("HTTP"),
                                 .password = QStringLiteral("secret")};
    QVERIFY(addDevice(installer.doc, handedOver));
    installer.search();
    const auto* detector = installer.window->findChild<DeviceDetector*>();
    answer(microphone);
    QTRY_VERIFY(!detector->deviceInfo(microphoneAddress).serialNumber.isEmpty());
    answer(hub);
    QTRY_VERIFY(deviceByAddress(installer.doc, hubAddress));
    QCOMPARE(deviceCount(installer.doc), 2);
    QCOMPARE(deviceAt(installer.doc, 0)->label, QStringLiteral("Handed"));
    QCOMPARE(deviceAt(installer.doc, 0)->macAddress, QStringLiteral("a0:00:00:01"));

    // It still identifies itself over the web API: nothing reaches its text commands.
    QTcpServer webApi;
    QVERIFY(webApi.listen(QHostAddress(microphoneAddress), 80));
    QVERIFY(identifyDevice(installer.doc, microphoneAddress));
    QTRY_VERIFY(webApi.hasPendingConnections());
}

void TestFoundDevices::savedWorkMeetsTheDevicesFoundMeanwhile()
{
    SimpleDevice before(microphoneAddress, "PX-DL", "S2", 2);
    SimpleDevice after(microphoneAddress, "PX-DL", "S2", 2);
    auto saving = std::make_unique<SearchingWizard>();
    QVERIFY(before.open());
    saving->search();
    answer(before);
    QTRY_COMPARE(deviceCount(saving->doc), 1);
    setRoomCells(saving->doc, 1, {{0, 0}});
    setRoomCells(saving->doc, 2, {{1, 0}});
    QVERIFY(setDeviceRoom(saving->doc, microphoneAddress, 2));
    setPageIndex(saving->doc, 2);
    QVERIFY(QDir().mkpath(QFileInfo(resumePath()).path()));
    QVERIFY(saving->doc.saveResume(resumePath()));
    saving.reset();
    before.commands().switchOff();

    TesselDoc doc(nullptr);
    MainWindow window(nullptr, &doc);
    QCoreApplication::removePostedEvents(&window); // the question for the interface
    setNicIndex(doc, loopbackIndex());
    window.show();
    QVERIFY(after.commands().listen());
    StartDiscoveryEvent search;
    QCoreApplication::sendEvent(&window, &search);
    QVERIFY(!window.isEnabled());
    before.send(before.reply().bytes(), wizard);
    QTRY_COMPARE(deviceCount(doc), 1);
    QCOMPARE(deviceAt(doc, 0)->roomNumber, 0);
    QTRY_VERIFY_WITH_TIMEOUT(window.isEnabled(), 8000);
    QCOMPARE(deviceAt(doc, 0)->roomNumber, 2);
    QVERIFY(!QFile::exists(resumePath()));
}

TESSEL_TEST_MAIN(TestFoundDevices)
#include "tst_founddevices.moc"
