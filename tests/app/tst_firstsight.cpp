#include "documentfixtures.h"
#include "finding.h"
#include "gridcolor.h"
#include "gridgeometry.h"
#include "hands.h"
#include "mainwindow.h"
#include "roomcolor.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "wizardhands.h"

#include <QApplication>
#include <QPainter>
#include <QTest>

#include <memory>

namespace {

constexpr int roomTotal = 3;
constexpr int columnsPerRoom = 2;
constexpr GridGeometry editorGrid{2, 48};
constexpr GridGeometry pickerGrid{1, 48};

/// The whole window over three rooms side by side and one placed device, so that nothing holds
/// "Next" up before step 5. Used as a hand does, through the window rather than its widgets.
struct Wizard
{
    Wizard()
    {
        setNicIndex(doc, 7); // no dialog at the start
        drawRooms(doc, roomTotal);
        addTestDevice(doc, QStringLiteral("Hub-A"), QStringLiteral("PX-HB"),
                      QStringLiteral("127.61.4.1"), 1);
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }

    void clickNext(int times) const
    {
        for (int i = 0; i < times; ++i) {
            QCoreApplication::processEvents();
            QVERIFY(WizardHands(window.get()).next());
        }
    }

    QWidget* grid(QAnyStringView name) const { return widgetOf(*shownPage(*window), name); }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

QRect roomRect(const GridGeometry& grid, int room)
{
    const int left = columnsPerRoom * (room - 1);
    const int lowest = GridGeometry::cellsPerSide - 1;
    return grid.cellRect({left, 0}).united(grid.cellRect({left + columnsPerRoom - 1, lowest}));
}

void drawNumber(QPainter& painter, const QRect& rect, int room)
{
    painter.setPen(QPen(Qt::white, 1));
    painter.drawText(rect, Qt::AlignCenter, QString::number(room));
}

/// The room editor as it has to look: ground, lines, and each cell with colour and number.
QImage drawnRooms(const QFont& font)
{
    const int side = editorGrid.side();
    QPixmap picture(side, side);
    picture.fill(gridBackground);
    QPainter painter(&picture);
    painter.setFont(font);
    for (int i = 0; i <= GridGeometry::cellsPerSide; ++i) {
        const int line = i * editorGrid.pitch();
        painter.fillRect(line, 0, editorGrid.gap, side, Qt::black);
        painter.fillRect(0, line, side, editorGrid.gap, Qt::black);
    }
    for (int x = 0; x < columnsPerRoom * roomTotal; ++x) {
        for (int y = 0; y < GridGeometry::cellsPerSide; ++y) {
            const int room = x / columnsPerRoom + 1;
            painter.fillRect(editorGrid.cellRect({x, y}), roomColor(room, Qt::white));
            drawNumber(painter, editorGrid.cellRect({x, y}), room);
        }
    }
    painter.end();
    return picture.toImage();
}

void drawDropDownMark(QPainter& painter, QPoint center)
{
    painter.setBrush(Qt::white);
    painter.drawPolygon(QPolygon({center + QPoint(6, 0), center + QPoint(14, 0),
                                  center + QPoint(10, 4), center + QPoint(6, 0)}));
}

/// The combination picker as it has to look: ground, rooms with number and drop-down mark, and a
/// link box on the first border of each two.
QImage unlinkedRooms(const QFont& font)
{
    QPixmap picture(pickerGrid.side(), pickerGrid.side());
    picture.fill(gridBackground);
    QPainter painter(&picture);
    painter.setFont(font);
    for (int room = 1; room <= roomTotal; ++room) {
        const QRect rect = roomRect(pickerGrid, room);
        painter.fillRect(rect, roomColor(room, Qt::white));
        drawNumber(painter, rect, room);
        drawDropDownMark(painter, rect.center());
    }
    for (int room = 1; room < roomTotal; ++room) {
        const QPoint corner(columnsPerRoom * room * pickerGrid.pitch() - 7, 16);
        painter.fillRect(QRect(corner, QSize(15, 15)), QColor(0xCC, 0xCC, 0xCC));
    }
    painter.end();
    return picture.toImage();
}

} // namespace

/// What the grids show to an installer who comes to them with the mouse, and with keys.
class TestFirstSight : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theMouseFindsTheDrawnRoomsAndNothingMore();
    void theMouseFindsTheUnlinkedRoomsAndNothingMore();
    void keysShowWhereTheyAre_data();
    void keysShowWhereTheyAre();
};

void TestFirstSight::theMouseFindsTheDrawnRoomsAndNothingMore()
{
#ifdef Q_OS_WIN
    QSKIP("letters are smoothed in another way there");
#endif
    const Wizard wizard;
    wizard.clickNext(1);
    QWidget* editor = wizard.grid("roomEditor");
    QVERIFY(editor->hasFocus());
    QCOMPARE(editor->grab().toImage(), drawnRooms(editor->font()));
}

void TestFirstSight::theMouseFindsTheUnlinkedRoomsAndNothingMore()
{
    const Wizard wizard;
    wizard.clickNext(3);
    QWidget* picker = wizard.grid("tessel");
    QVERIFY(picker->hasFocus());
    QCOMPARE(picker->grab().toImage(), unlinkedRooms(picker->font()));
}

void TestFirstSight::keysShowWhereTheyAre_data()
{
    QTest::addColumn<int>("pagesOn");
    QTest::addColumn<QString>("grid");
    QTest::addColumn<Qt::Key>("there");
    QTest::addColumn<Qt::Key>("back");
    const QString editor = QStringLiteral("roomEditor");
    const QString picker = QStringLiteral("tessel");
    QTest::newRow("Tab to the editor") << 1 << editor << Qt::Key_Backtab << Qt::Key_Tab;
    QTest::newRow("Tab to the picker") << 3 << picker << Qt::Key_Backtab << Qt::Key_Tab;
    QTest::newRow("back to the editor") << 1 << editor << Qt::Key_Tab << Qt::Key_Backtab;
    QTest::newRow("back to the picker") << 3 << picker << Qt::Key_Tab << Qt::Key_Backtab;
    QTest::newRow("arrows in the editor") << 1 << editor << Qt::Key_Right << Qt::Key_Left;
    QTest::newRow("arrows in the picker") << 3 << picker << Qt::Key_Right << Qt::Key_Left;
    QTest::newRow("the editor's edge") << 1 << editor << Qt::Key_Up << Qt::Key_Up;
    QTest::newRow("the picker's edge") << 3 << picker << Qt::Key_Left << Qt::Key_Left;
}

void TestFirstSight::keysShowWhereTheyAre()
{
    QFETCH(const int, pagesOn);
    QFETCH(const QString, grid);
    QFETCH(const Qt::Key, there);
    QFETCH(const Qt::Key, back);
    const Wizard wizard;
    wizard.clickNext(pagesOn);
    QWidget* shown = wizard.grid(grid);
    const QImage unmarked = shown->grab().toImage();
    Hands::pressKey(wizard.window.get(), there);
    Hands::pressKey(wizard.window.get(), back);
    QVERIFY(shown->hasFocus());
    QVERIFY(shown->grab().toImage() != unmarked);
    // A click beside the rooms changes nothing but takes the mark away.
    QTest::mouseClick(shown, Qt::LeftButton, {}, QPoint(0, 0));
    QCOMPARE(shown->grab().toImage(), unmarked);
}

TESSEL_TEST_MAIN(TestFirstSight)
#include "tst_firstsight.moc"
