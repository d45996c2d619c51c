// The whole job with the keyboard alone: 4 rooms, 24 devices beside 2 hubs, 3 layouts.
#include "devicequeries.h"
#include "dialoganswerer.h"
#include "documentfixtures.h"
#include "finding.h"
#include "hall.h"
#include "keyboarduser.h"
#include "mainwindow.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "wizardhands.h"

#include <QApplication>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>

#include <memory>

namespace {

constexpr int maxStrokes = 160;
constexpr int longestWaitMs = 20'000;
constexpr int hubs = 2;
constexpr int perModel = 8;
constexpr int hubRooms[hubs] = {1, 3};
const QString base = QStringLiteral("127.86.0.1");
const QString password = QStringLiteral("pass");

/// The rooms of the peripherals, in the order of their list.
int roomOf(int device)
{
    return device % 4 + 1;
}

HallDescription describe()
{
    HallDescription hall = HallDescription::byCounts(hubs, 3 * perModel, base).value();
    for (qsizetype i = 0; i < hall.peripherals.size(); ++i) {
        const char* models[] = {"PX-DL8", "LQA4-08S", "PNB-QE7"};
        hall.peripherals[i].model = QLatin1String(models[i / perModel]);
        hall.peripherals[i].label = QStringLiteral("Device-%1").arg(i + 1, 2, 10, QLatin1Char('0'));
    }
    for (HubDescription& hub : hall.hubs) {
        hub.exportPolls = 0; // nobody waits for the second between two polls
    }
    hall.hubs.first().password = password; // the other one has none yet
    return hall;
}

void enter(TesselDoc& doc, const DeviceDescription& device)
{
    FoundDevice found = testDevice(device.label, device.model, device.address);
    found.macAddress = device.mac;
    QVERIFY(addDevice(doc, found));
}

/// Dialogs that come up together are answered from the one in front on.
bool isInFront(QWidget* dialog)
{
    return QApplication::activeWindow() == dialog;
}

/// The wizard in front of a hall that it knows from its arguments.
struct Desk
{
    Desk()
    {
        QString error;
        const bool started = hall.start(&error);
        QVERIFY2(started, qPrintable(error));
        setNicIndex(doc, 7); // handed over, so that nothing is looked for
        for (const HubDescription& hub : hall.description().hubs) {
            enter(doc, hub);
        }
        for (const DeviceDescription& device : hall.description().peripherals) {
            enter(doc, device);
        }
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    int page() const { return WizardHands(window.get()).pageNumber(); }
    QString statuses() const { return WizardHands(window.get()).statuses(); }

    void introduction();
    void drawRooms();
    void placeDevices();
    void makeLayouts();
    void chooseDevices();
    void chooseSides();
    void namePresets();
    void install();

    void next() { user.press(Qt::Key_Right, Qt::AltModifier); }
    void place(int room) { user.press(Qt::Key(Qt::Key_0 + room), Qt::ControlModifier); }

    Hall hall{describe()};
    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
    KeyboardUser user;
};

void Desk::introduction()
{
    next();
}

/// Four rooms of two cells, side by side.
void Desk::drawRooms()
{
    for (int room = 1; room <= 4; ++room) {
        if (room > 1) {
            user.press(Qt::Key_Right);
        }
        user.press(Qt::Key_Right, Qt::ShiftModifier);
    }
    next();
}

void Desk::placeDevices()
{
    user.press(Qt::Key_Tab); // from the summary to the hubs
    for (const int room : hubRooms) {
        place(room);
    }
    user.press(4, Qt::Key_Tab); // lamp, pencil, room, peripherals
    for (int device = 0; device < 3 * perModel; ++device) {
        place(roomOf(device));
    }
    next();
}

/// 1/2/3/4, 1+2/3+4 and 1+2+3+4.
void Desk::makeLayouts()
{
    user.press(4, Qt::Key_Tab);
    user.press(Qt::Key_Return); // "Add Layout"
    user.press(Qt::Key_Backtab);
    user.press(Qt::Key_Return); // 3 and 4
    user.press(2, Qt::Key_Backtab);
    user.press(Qt::Key_Return); // 1 and 2
    user.press(3, Qt::Key_Tab);
    user.press(Qt::Key_Return);
    user.press(2, Qt::Key_Backtab);
    user.press(Qt::Key_Return); // 2 and 3
    user.press(2, Qt::Key_Tab);
    user.press(Qt::Key_Return);
    next();
}

/// The second hub is not used where all rooms are one.
void Desk::chooseDevices()
{
    user.press(Qt::Key_End);
    user.press(2, Qt::Key_Tab); // counts, hubs
    user.press(Qt::Key_End);
    user.press(2, Qt::Key_Tab); // lamp, "Remove"
    user.press(Qt::Key_Return);
    next();
}

/// Half of the speakers stand on the right where all rooms are one.
void Desk::chooseSides()
{
    user.press(Qt::Key_End);
    user.press(Qt::Key_Tab);
    for (int speaker = 0; speaker < perModel / 2; ++speaker) {
        user.press(2, Qt::Key_Tab); // lamp, side
        user.type(QStringLiteral("R"));
    }
    next();
}

void Desk::namePresets()
{
    user.press(Qt::Key_Tab);
    for (const char* name : {"Red", "Blu", "Grn", "Yel", "West", "East", "Hall"}) {
        user.type(QLatin1String(name));
        user.press(Qt::Key_Down);
    }
    next();
}

void Desk::install()
{
    DialogAnswerer dialogs;
    const auto typeOnce = [this](QWidget*) {
        user.type(password);
        user.press(Qt::Key_Return);
    };
    const auto typeTwice = [typeOnce](QWidget* dialog) {
        typeOnce(dialog); // Return leads to the other field
        typeOnce(dialog);
    };
    dialogs.onDialog("loginDialog", typeOnce, isInFront);
    dialogs.onDialog("initialPasswordDialog", typeTwice, isInFront);
    user.press(Qt::Key_Backtab); // from the list round to the button at the end
    user.press(Qt::Key_Return);
    QTRY_COMPARE_WITH_TIMEOUT(statuses(), QStringLiteral("Done Done"), longestWaitMs);
    next();
}

/// The files of a preset that are not the hub's own.
QStringList peripheralFiles(const SimulatedHub& hub, int preset)
{
    QStringList names = hub.presets().value(preset).files.keys();
    names.removeOne(hub.hubDescription().storageName());
    names.sort();
    return names;
}

QByteArray ownFile(const SimulatedHub& hub, int preset)
{
    return hub.presets().value(preset).files.value(hub.hubDescription().storageName());
}

/// What the files of these rooms' devices are called.
QStringList filesOf(const Hall& hall, const QList<int>& rooms)
{
    QStringList names;
    const QList<DeviceDescription>& devices = hall.description().peripherals;
    for (int device = 0; device < devices.size(); ++device) {
        if (rooms.contains(roomOf(device))) {
            names.append(QString(devices.at(device).mac).remove(u':'));
        }
    }
    names.sort();
    return names;
}

qsizetype speakersOnTheRight(const SimulatedHub& hub, int preset)
{
    return QString::fromUtf8(ownFile(hub, preset))
        .count(QRegularExpression(QStringLiteral("peripheral\\.position\\d+=\"2\"")));
}

void checkPreset(const Hall& hall, int hub, int preset, const QString& name,
                 const QList<int>& rooms)
{
    const SimulatedHub& held = *hall.hubs().at(hub);
    QCOMPARE(held.presets().value(preset).description(), name);
    QCOMPARE(peripheralFiles(held, preset), filesOf(hall, rooms));
}

} // namespace

class TestKeyboardJob : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theWholeJobIsDoneWithFewKeysAndTheFocusIsNeverLost();
};

void TestKeyboardJob::theWholeJobIsDoneWithFewKeysAndTheFocusIsNeverLost()
{
    Desk desk;
    using Step = void (Desk::*)();
    const QList<Step> steps{&Desk::introduction, &Desk::drawRooms,     &Desk::placeDevices,
                            &Desk::makeLayouts,  &Desk::chooseDevices, &Desk::chooseSides,
                            &Desk::namePresets,  &Desk::install};
    for (qsizetype step = 0; step < steps.size(); ++step) {
        QCOMPARE(desk.page(), step + 1);
        const int before = desk.user.strokes();
        (desk.*steps.at(step))();
        qInfo("Step %lld: %d key strokes", qlonglong(step + 1), desk.user.strokes() - before);
    }
    QCOMPARE(desk.page(), 9);
    QCOMPARE(QApplication::focusWidget(), WizardHands(desk.window.get()).button("closeButton"));
    qInfo("The whole job: %d key strokes", desk.user.strokes());
    QVERIFY(desk.user.strokes() <= maxStrokes);
    QCOMPARE(desk.user.focusLostAt(), QStringList());

    checkPreset(desk.hall, 0, 1, QStringLiteral("Red"), {1});
    checkPreset(desk.hall, 0, 2, QStringLiteral("West"), {1, 2});
    checkPreset(desk.hall, 0, 3, QStringLiteral("Hall"), {1, 2, 3, 4});
    checkPreset(desk.hall, 1, 1, QStringLiteral("Grn"), {3});
    checkPreset(desk.hall, 1, 2, QStringLiteral("East"), {3, 4});
    checkPreset(desk.hall, 1, 3, QStringLiteral("Hall"), {});
    for (const int preset : {1, 2, 3}) {
        QCOMPARE(speakersOnTheRight(*desk.hall.hubs().first(), preset),
                 preset == 3 ? perModel / 2 : 0);
    }
    QCOMPARE(desk.hall.differences(), QStringList());
}

TESSEL_TEST_MAIN(TestKeyboardJob)
#include "tst_keyboardjob.moc"
