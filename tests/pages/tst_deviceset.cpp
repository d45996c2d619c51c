#include "cellcolors.h"
#include "configurestep.h"
#include "datakey.h"
#include "datakind.h"
#include "pagefixtures.h"
#include "removebutton.h"
#include "setqueries.h"
#include "tablefixtures.h"
#include "testcase.h"

#include <QPushButton>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QTreeWidget>

#include <array>

class TestDeviceSet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hubsAndPeripheralsAreListedByHostname();
    void theSummaryCountsWhatIsInTheSet();
    void limits_data();
    void limits();
    void aDeviceHasItsOwnRemovedFlagInEverySetThatContainsItsRoom();
    void revertingARemovedDeviceRestoresBlackTextsAndTheRemoveLabel();
    void aRemovedDeviceIsGrayAndReadableWhetherSelectedOrNot_data();
    void aRemovedDeviceIsGrayAndReadableWhetherSelectedOrNot();
    void aDeviceTakenBackLooksAsOneNeverRemoved_data();
    void aDeviceTakenBackLooksAsOneNeverRemoved();
    void theStoredOrderIsThatOfFillingWhateverTheTableShows();
    void storingReturnsSpeakersToTheLeft();
    void aDeviceHandedOverTwiceIsListedOnce();
    void theIdentifyButtonMakesTheDeviceIdentifyItself();
    void removingWorksWithTheKeyboard();
    void aRemovedDeviceSaysSo();
    void aListWithoutDevicesSaysSo();
};

namespace {

const QString network = QStringLiteral("127.51.3");
constexpr quint16 textCommandPort = 49280;

QStringList storedAddresses(IDocAccessor& doc)
{
    QList<QVariantMap> records;
    doc.getDataList(DataKind::DeviceSet, {}, records);
    QStringList addresses;
    for (const QVariantMap& record : records) {
        addresses.append(record.value(DataKey::deviceIPAddress()).toString());
    }
    return addresses;
}

constexpr double readable = 3.0;
constexpr std::array textColumns{0, 2, 3, 4};

/// Two devices of room 1, listed one above the other, with texts whose colour can be measured.
struct TwoDevices : ConfigureStep
{
    explicit TwoDevices(bool firstIsRemoved = false)
        : ConfigureStep(::network)
    {
        drawTextsInOneColor(page);
        place("PX-DL", 2, 1);
        addColouredLayout(doc, 1, QStringLiteral("1"), Qt::cyan);
        if (firstIsRemoved) {
            addToDeviceSet(doc, 1, 1, address(1), true);
        }
        enter();
    }

    void pressButton(int device, bool byKey)
    {
        if (byKey) {
            button(device)->setFocus(Qt::TabFocusReason);
            QTest::keyClick(button(device), Qt::Key_Space);
        } else {
            press(button(device));
        }
    }

    CellColors colors(int device, int column)
    {
        return cellColors(*peripherals(), row(device), column);
    }
};

/// Compares one device's texts with what an ordinary row shows, which is the other one.
void verifyGray(TwoDevices& step, int device, bool selected)
{
    QCOMPARE(step.row(device)->isSelected(), selected);
    for (const int column : textColumns) {
        const auto [ground, text] = step.colors(device, column);
        QCOMPARE(ground == QColor(Qt::white), !selected);
        QCOMPARE(text.hsvSaturation(), 0);
        QVERIFY(text != QColor(Qt::black) && text != QColor(Qt::white));
        QVERIFY2(contrastOf(text, ground) >= readable,
                 qPrintable(QStringLiteral("column %1: %2 on %3")
                                .arg(QString::number(column), text.name(), ground.name())));
    }
}

void addWaysToPress()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("by mouse") << false;
    QTest::newRow("by key") << true;
}

} // namespace

void TestDeviceSet::hubsAndPeripheralsAreListedByHostname()
{
    ConfigureStep step(network);
    addTestDevice(step.doc, QStringLiteral("b-mic"), QStringLiteral("PX-DL"), step.address(1), 2);
    addTestDevice(step.doc, QStringLiteral("a-odd"), QStringLiteral("PX-ODD"), step.address(2), 1);
    addTestDevice(step.doc, QStringLiteral("hub"), QStringLiteral("PX-HB2"), step.address(3), 1);
    addTestDevice(step.doc, QStringLiteral("elsewhere"), QStringLiteral("PX-HB"), step.address(4),
                  3);
    addTestDevice(step.doc, QStringLiteral("nowhere"), QStringLiteral("PX-HB"), step.address(5), 0);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    step.enter();
    QCOMPARE(columnTexts(*step.hubs(), "Hostname"), QStringList{QStringLiteral("hub")});
    QCOMPARE(columnTexts(*step.peripherals(), "Hostname").join(u' '),
             QStringLiteral("a-odd b-mic"));
    QCOMPARE(columnTexts(*step.peripherals(), "Model").join(u' '), QStringLiteral("PX-ODD PX-DL"));
    QCOMPARE(columnTexts(*step.peripherals(), "Room").join(u' '), QStringLiteral("1 2"));
    QCOMPARE(step.hubs()->accessibleName(), QStringLiteral("PX-HB"));
    QCOMPARE(step.peripherals()->accessibleName(), QStringLiteral("Peripheral"));
}

void TestDeviceSet::theSummaryCountsWhatIsInTheSet()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 2, 1);
    step.place("PX-NDE", 1, 1);
    step.place("LQA4-08S", 2, 1);
    step.place("PNB-QE7", 1, 1);
    step.place("PX-ODD", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.counts(), QStringLiteral("1 3 2 1"));
    press(step.button(2));
    press(step.button(1));
    QCOMPARE(step.counts(), QStringLiteral("0 2 2 1"));
    press(step.button(2));
    QCOMPARE(step.counts(), QStringLiteral("0 3 2 1"));
}

void TestDeviceSet::limits_data()
{
    QTest::addColumn<int>("hubs");
    QTest::addColumn<int>("microphones");
    QTest::addColumn<int>("speakers");
    QTest::addColumn<int>("controllers");
    QTest::addColumn<int>("others");
    QTest::addColumn<bool>("valid");

    QTest::newRow("a group with no hub is valid") << 0 << 1 << 0 << 0 << 0 << true;
    QTest::newRow("a group with nothing at all is valid") << 0 << 0 << 0 << 0 << 0 << true;
    QTest::newRow("one hub is valid") << 1 << 0 << 0 << 0 << 0 << true;
    QTest::newRow("two hubs are red") << 2 << 0 << 0 << 0 << 0 << false;
    QTest::newRow("16 microphones and speakers are valid") << 1 << 10 << 6 << 0 << 0 << true;
    QTest::newRow("17 microphones and speakers are red") << 1 << 10 << 7 << 0 << 0 << false;
    QTest::newRow("16 speakers are valid") << 1 << 0 << 16 << 0 << 0 << true;
    QTest::newRow("17 microphones are red") << 1 << 17 << 0 << 0 << 0 << false;
    QTest::newRow("8 controllers are valid") << 1 << 0 << 0 << 8 << 0 << true;
    QTest::newRow("9 controllers are red") << 1 << 0 << 0 << 9 << 0 << false;
    QTest::newRow("other models are not counted") << 1 << 16 << 0 << 8 << 20 << true;
}

void TestDeviceSet::limits()
{
    QFETCH(const int, hubs);
    QFETCH(const int, microphones);
    QFETCH(const int, speakers);
    QFETCH(const int, controllers);
    QFETCH(const int, others);
    QFETCH(const bool, valid);

    ConfigureStep step(network);
    step.place("PX-HB", hubs, 1);
    step.place("PX-BK", microphones, 1);
    step.place("DSK4M", speakers, 1);
    step.place("PNB-QE7", controllers, 1);
    step.place("PX-ODD", others, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.canGoOn(), valid);
    QCOMPARE(step.isRed(0), !valid);
    QCOMPARE(step.isBlack(0), valid);
}

void TestDeviceSet::aDeviceHasItsOwnRemovedFlagInEverySetThatContainsItsRoom()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    step.place("PX-DL", 1, 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    addColouredLayout(step.doc, 2, QStringLiteral("1/2"), Qt::yellow);
    step.enter();
    press(step.button(2));
    QVERIFY(step.button(2)->isRemoved());
    selectGroup(step.page, 2);
    QVERIFY(!step.button(2)->isRemoved());
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(step.storedRemoval(1, 1, 2), std::optional(true));
    QCOMPARE(step.storedRemoval(3, 2, 2), std::optional(false));
    QCOMPARE(step.storedRemoval(2, 2, 2), std::nullopt);
}

void TestDeviceSet::revertingARemovedDeviceRestoresBlackTextsAndTheRemoveLabel()
{
    ConfigureStep step(network);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.button(1));
    QVERIFY(allTextsAre(step.row(1), Qt::darkGray));
    QCOMPARE(step.button(1)->accessibleName(), QStringLiteral("Revert dev-001"));
    press(step.button(1));
    QVERIFY(allTextsAre(step.row(1), Qt::black));
    QVERIFY(!step.button(1)->isRemoved());
    QCOMPARE(step.button(1)->accessibleName(), QStringLiteral("Remove dev-001"));
}

void TestDeviceSet::aRemovedDeviceIsGrayAndReadableWhetherSelectedOrNot_data()
{
    addWaysToPress();
}

void TestDeviceSet::aRemovedDeviceIsGrayAndReadableWhetherSelectedOrNot()
{
    QFETCH(const bool, byKey);
    TwoDevices step;
    QVERIFY(QTest::qWaitForWindowActive(&step.page));
    step.pressButton(1, byKey);
    verifyGray(step, 1, true);
    step.pressButton(2, byKey);
    verifyGray(step, 1, false);
    verifyGray(step, 2, true);
    // By key: a row under the pointer shines.
    QTest::keyClick(step.peripherals(), Qt::Key_Up);
    verifyGray(step, 1, true);
    verifyGray(step, 2, false);
}

void TestDeviceSet::aDeviceTakenBackLooksAsOneNeverRemoved_data()
{
    QTest::addColumn<bool>("wasStored");
    QTest::addColumn<bool>("byReset");
    QTest::newRow("removed here and reverted") << false << false;
    QTest::newRow("removed earlier and reverted") << true << false;
    QTest::newRow("removed here, then Reset") << false << true;
    QTest::newRow("removed earlier, then Reset") << true << true;
}

void TestDeviceSet::aDeviceTakenBackLooksAsOneNeverRemoved()
{
    QFETCH(const bool, wasStored);
    QFETCH(const bool, byReset);
    TwoDevices step(wasStored);
    if (wasStored) {
        verifyGray(step, 1, false);
    } else {
        press(step.button(1));
    }
    press(byReset ? static_cast<QWidget*>(buttonOf(step.page, "resetButton")) : step.button(1));
    for (const int selected : {1, 2}) {
        QTest::keyClick(step.peripherals(), selected == 1 ? Qt::Key_Home : Qt::Key_End);
        for (const int column : textColumns) {
            const auto [ground, text] = step.colors(3 - selected, column);
            QCOMPARE(ground, QColor(Qt::white));
            QCOMPARE(text, QColor(Qt::black));
            QCOMPARE(step.colors(selected, column).text, QColor(Qt::white));
        }
    }
}

void TestDeviceSet::theStoredOrderIsThatOfFillingWhateverTheTableShows()
{
    ConfigureStep step(network);
    addTestDevice(step.doc, QStringLiteral("z"), QStringLiteral("PX-DL"), step.address(1), 2);
    addTestDevice(step.doc, QStringLiteral("y"), QStringLiteral("PX-DL"), step.address(2), 1);
    addTestDevice(step.doc, QStringLiteral("x"), QStringLiteral("PX-HB"), step.address(3), 1);
    addTestDevice(step.doc, QStringLiteral("w"), QStringLiteral("PX-DL"), step.address(4), 2);
    addColouredLayout(step.doc, 1, QStringLiteral("1+2"), Qt::cyan);
    step.enter();
    step.peripherals()->sortByColumn(columnOf(*step.peripherals(), "IP Address"),
                                     Qt::DescendingOrder);
    press(buttonOf(step.page, "nextButton"));
    const QStringList filled{step.address(2), step.address(3), step.address(1), step.address(4)};
    QCOMPARE(storedAddresses(step.doc), filled);
}

void TestDeviceSet::storingReturnsSpeakersToTheLeft()
{
    ConfigureStep step(network);
    step.place("DSK4M", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    addToDeviceSet(step.doc, 1, 1, step.address(1), false);
    setSpeakerPosition(step.doc, 1, 1, step.address(1), QStringLiteral("R"));
    step.enter();
    press(buttonOf(step.page, "nextButton"));
    QCOMPARE(deviceSetRecord(step.doc, 1, 1, step.address(1))->speakerPosition,
             QStringLiteral("L"));
}

void TestDeviceSet::aDeviceHandedOverTwiceIsListedOnce()
{
    ConfigureStep step(network);
    step.place("PX-HB", 1, 1);
    addTestDevice(step.doc, QStringLiteral("again"), QStringLiteral("PX-HB"), step.address(1), 1);
    addTestDevice(step.doc, QStringLiteral("other"), QStringLiteral("PX-DL"), step.address(2), 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QCOMPARE(step.hubs()->topLevelItemCount(), 1);
    QVERIFY(step.canGoOn());
}

void TestDeviceSet::theIdentifyButtonMakesTheDeviceIdentifyItself()
{
    ConfigureStep step(network);
    QTcpServer device;
    QVERIFY(device.listen(QHostAddress(step.address(1)), textCommandPort));
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    press(step.peripherals()->itemWidget(step.row(1), 1));
    QTRY_VERIFY(device.hasPendingConnections());
    QTcpSocket* connection = device.nextPendingConnection();
    QTRY_COMPARE(connection->bytesAvailable(), qsizetype(sizeof "identify 5"));
    QCOMPARE(connection->readAll(), QByteArray("identify 5\n"));
}

void TestDeviceSet::removingWorksWithTheKeyboard()
{
    ConfigureStep step(network);
    step.place("PX-DL", 1, 1);
    addColouredLayout(step.doc, 1, QStringLiteral("1"), Qt::cyan);
    step.enter();
    QTest::keyClick(step.button(1), Qt::Key_Space);
    QVERIFY(step.button(1)->isRemoved());
    QVERIFY(allTextsAre(step.row(1), Qt::darkGray));
}

void TestDeviceSet::aRemovedDeviceSaysSo()
{
    ConfigureStep step(network);
    step.place("PX-DL", 2, 1);
    addTestLayout(step.doc, 1, QStringLiteral("1"));
    step.enter();
    const auto said = [&step](int column) {
        return step.row(1)->data(column, Qt::AccessibleTextRole).toString();
    };
    const auto explained = [&step](int column) {
        return step.row(1)->data(column, Qt::AccessibleDescriptionRole).toString();
    };
    for (const bool removed : {false, true, false}) {
        QCOMPARE(said(0), removed ? QStringLiteral("dev-001, removed") : QString());
        QCOMPARE(said(5), removed ? QStringLiteral("Revert") : QStringLiteral("Remove"));
        for (const int column : textColumns) {
            QCOMPARE(explained(column), removed ? QStringLiteral("removed") : QString());
        }
        QCOMPARE(step.row(1)->text(0), QStringLiteral("dev-001"));
        QCOMPARE(step.row(1)->text(5), QString());
        press(step.button(1));
    }
    press(step.page.findChild<QWidget*>(QStringLiteral("resetButton")));
    QCOMPARE(said(0), QString());
}

void TestDeviceSet::aListWithoutDevicesSaysSo()
{
    ConfigureStep step(network);
    step.place("PX-DL", 1, 1);
    addTestLayout(step.doc, 1, QStringLiteral("1"));
    step.enter();
    QCOMPARE(step.hubs()->accessibleDescription(), QStringLiteral("No PX-HB stands here."));
    QCOMPARE(step.peripherals()->accessibleDescription(), QString());
}

TESSEL_TEST_MAIN(TestDeviceSet)
#include "tst_deviceset.moc"
