#include "filledwizard.h"
#include "mainwindow.h"
#include "testcase.h"
#include "wizardpage.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTest>
#include <QToolTip>
#include <QTreeWidget>

namespace {

/// A cell's texts stand this far from its sides.
constexpr int cellMargin = 3;
constexpr int usualPoints = 10;

void setFontSize(int points)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}

void settle()
{
    for (int i = 0; i < 4; ++i) {
        QCoreApplication::processEvents(); // layouts within layouts
    }
}

QByteArray nameOf(const QWidget* widget)
{
    const QByteArray text = widget->property("text").toByteArray();
    return widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toUtf8() +
           ' ' + text;
}

QRect inWindow(const QWidget* widget)
{
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

void checkWindow(const FilledWizard& wizard)
{
    const MainWindow& window = *wizard.window;
    const QRect screen = window.screen()->availableGeometry();
    QVERIFY(screen.height() >= window.frameGeometry().height());
    // A window as wide as its screen has no frame at its sides.
    QVERIFY(screen.width() >= window.width());
    for (const QPushButton* button : wizard.buttons()) {
        QVERIFY2(button->isVisible(), nameOf(button).constData());
        QVERIFY2(window.rect().contains(inWindow(button)), nameOf(button).constData());
        QVERIFY2(!inWindow(button).intersects(inWindow(wizard.area())), nameOf(button).constData());
        const QSize needed = button->sizeHint();
        QVERIFY2(button->size().expandedTo(needed) == button->size(), nameOf(button).constData());
    }
}

void checkLabels(const FilledWizard& wizard)
{
    for (const QLabel* label : wizard.window->findChildren<QLabel*>()) {
        if (!label->isVisible()) {
            continue;
        }
        const QSize needed =
            label->wordWrap() ? QSize(0, label->heightForWidth(label->width())) : label->sizeHint();
        QVERIFY2(label->size().expandedTo(needed) == label->size(), nameOf(label).constData());
    }
}

/// Whatever stands beside each other in the content lies apart.
void checkPlaces(const QWidget* around)
{
    const auto widgets = around->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (const QWidget* one : widgets) {
        for (const QWidget* other : widgets) {
            const bool bothShown = one->isVisible() && other->isVisible();
            QVERIFY2(one == other || !bothShown || !one->geometry().intersects(other->geometry()),
                     (nameOf(one) + " over " + nameOf(other)).constData());
        }
    }
}

void checkLists(const FilledWizard& wizard)
{
    for (const auto* list : wizard.shown<QTreeWidget>()) {
        checkPlaces(list->parentWidget());
        QVERIFY2(list->viewport()->height() >= list->visualItemRect(list->topLevelItem(0)).height(),
                 nameOf(list).constData());
        for (const auto* combo : list->findChildren<QComboBox*>()) {
            QVERIFY(combo->height() >= combo->minimumSizeHint().height() - 2);
        }
        for (const auto* field : list->findChildren<QLineEdit*>()) {
            QVERIFY(field->height() >= field->fontMetrics().height() + 2);
        }
    }
}

void checkLook(const FilledWizard& wizard)
{
    checkWindow(wizard);
    checkLabels(wizard);
    checkPlaces(&wizard.page());
    checkLists(wizard);
}

void addFonts()
{
    QTest::addColumn<int>("points");
    for (const int points : {10, 14, 16}) {
        QTest::addRow("%d points", points) << points;
    }
}

void addPagesAndFonts()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("points");
    for (int page = 1; page <= pageCount; ++page) {
        for (const int points : {10, 14, 16}) {
            QTest::addRow("page %d, %d points", page, points) << page << points;
        }
    }
}

QTreeWidget* listOf(const FilledWizard& wizard, const QString& name)
{
    for (auto* list : wizard.shown<QTreeWidget>()) {
        if (list->objectName() == name) {
            return list;
        }
    }
    return nullptr;
}

/// Whether hovering over a cell shows its whole text.
bool isTold(QTreeWidget* list, const QModelIndex& cell)
{
    const QPoint at = list->visualRect(cell).topLeft() + QPoint(2, 2);
    QHelpEvent hover(QEvent::ToolTip, at, list->viewport()->mapToGlobal(at));
    QCoreApplication::sendEvent(list->viewport(), &hover);
    // One that goes lingers a little.
    return QToolTip::isVisible() && QToolTip::text() == cell.data().toString();
}

} // namespace

/// Run once for each kind of screen that the wizard is used on.
class TestPageSizes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void everyPageFitsOnTheScreenWithItsButtons_data() { addPagesAndFonts(); }
    void everyPageFitsOnTheScreenWithItsButtons();
    void everyPageFitsWhenTheFontGrowsMeanwhile_data() { addPagesAndFonts(); }
    void everyPageFitsWhenTheFontGrowsMeanwhile();
    void nothingScrollsWhereTheScreenHoldsTheWindow_data();
    void nothingScrollsWhereTheScreenHoldsTheWindow();
    void whateverTheKeyboardReachesIsScrolledIntoSight_data() { addPagesAndFonts(); }
    void whateverTheKeyboardReachesIsScrolledIntoSight();
    void theCursorOfTheGridStaysInSight_data() { addFonts(); }
    void theCursorOfTheGridStaysInSight();
    void countsOfEveryRoomAreShownWhole_data() { addFonts(); }
    void countsOfEveryRoomAreShownWhole();
    void countsOfASetAreShownWhole_data() { addFonts(); }
    void countsOfASetAreShownWhole();
    void columnsAreInProportionToTheFont_data();
    void columnsAreInProportionToTheFont();
    void namesThatAreCutAreToldWhole_data();
    void namesThatAreCutAreToldWhole();
    void aPresetNameThatIsCutIsToldWhole();
    void theTitleStaysAsItIs_data() { addFonts(); }
    void theTitleStaysAsItIs();
    void aSavedSizeIsBroughtBackWithinTheScreen_data() { addFonts(); }
    void aSavedSizeIsBroughtBackWithinTheScreen();
    void aWindowAtTheEdgeIsBroughtBackWhole();
};

void TestPageSizes::cleanup()
{
    setFontSize(usualPoints);
}

void TestPageSizes::everyPageFitsOnTheScreenWithItsButtons()
{
    QFETCH(const int, page);
    QFETCH(const int, points);
    setFontSize(points);
    const FilledWizard wizard(page);
    settle();
    checkLook(wizard);
}

void TestPageSizes::everyPageFitsWhenTheFontGrowsMeanwhile()
{
    QFETCH(const int, page);
    QFETCH(const int, points);
    const FilledWizard wizard(page);
    setFontSize(points);
    settle();
    checkLook(wizard);
}

void TestPageSizes::nothingScrollsWhereTheScreenHoldsTheWindow_data()
{
    QTest::addColumn<int>("page");
    for (int page = 1; page <= pageCount; ++page) {
        QTest::addRow("page %d", page) << page;
    }
}

void TestPageSizes::nothingScrollsWhereTheScreenHoldsTheWindow()
{
    QFETCH(const int, page);
    const FilledWizard wizard(page);
    if (wizard.window->minimumSize() != QSize(800, 600)) {
        QSKIP("on smaller screens pages may scroll");
    }
    wizard.window->resize(800, 600);
    settle();
    QVERIFY(!wizard.area()->verticalScrollBar()->isVisible());
    QVERIFY(!wizard.area()->horizontalScrollBar()->isVisible());
}

void TestPageSizes::whateverTheKeyboardReachesIsScrolledIntoSight()
{
    QFETCH(const int, page);
    QFETCH(const int, points);
    setFontSize(points);
    const FilledWizard wizard(page);
    settle();
    const QWidget* viewport = wizard.area()->viewport();
    for (int i = 0; i < 12; ++i) {
        QTest::keyClick(wizard.window->focusWidget() ? wizard.window->focusWidget()
                                                     : wizard.window.get(),
                        Qt::Key_Tab);
        settle();
        const QWidget* reached = wizard.window->focusWidget();
        QVERIFY(reached);
        if (viewport->isAncestorOf(reached)) {
            const QRect place(reached->mapTo(viewport, QPoint()), reached->size());
            QVERIFY2(place.height() > viewport->height() ||
                         (place.top() >= 0 && place.bottom() < viewport->height()),
                     nameOf(reached).constData());
        }
    }
}

void TestPageSizes::theCursorOfTheGridStaysInSight()
{
    QFETCH(const int, points);
    setFontSize(points);
    const FilledWizard wizard(2);
    settle();
    auto* grid = wizard.page().findChild<QWidget*>(QStringLiteral("roomEditor"));
    grid->setFocus(Qt::TabFocusReason);
    const auto isSeen = [&](QPoint cell) {
        constexpr int pitch = 50;
        const QRect place(grid->mapTo(wizard.area()->viewport(), cell * pitch), QSize(50, 50));
        return wizard.area()->viewport()->rect().contains(place);
    };
    for (int row = 1; row < 8; ++row) {
        QTest::keyClick(grid, Qt::Key_Down);
        QVERIFY(isSeen({0, row}));
    }
    for (int row = 6; row >= 0; --row) {
        QTest::keyClick(grid, Qt::Key_Up);
        QVERIFY(isSeen({0, row}));
    }
}

void TestPageSizes::countsOfEveryRoomAreShownWhole()
{
    QFETCH(const int, points);
    setFontSize(points);
    const FilledWizard wizard(3);
    settle();
    const QTreeWidget* table = listOf(wizard, QStringLiteral("summaryTable"));
    QCOMPARE(table->topLevelItemCount(), 4);
    for (int room = 0; room < 4; ++room) {
        const QRect row = table->visualItemRect(table->topLevelItem(room));
        QVERIFY(row.top() >= 0 && row.bottom() < table->viewport()->height());
    }
    QVERIFY(!table->verticalScrollBar()->isVisible());
}

void TestPageSizes::countsOfASetAreShownWhole()
{
    QFETCH(const int, points);
    setFontSize(points);
    const FilledWizard wizard(5);
    settle();
    const QTreeWidget* table = listOf(wizard, QStringLiteral("summaryTable"));
    QCOMPARE(table->topLevelItemCount(), 1);
    const QRect row = table->visualItemRect(table->topLevelItem(0));
    QVERIFY(row.top() >= 0 && row.bottom() < table->viewport()->height());
    QVERIFY(!table->verticalScrollBar()->isVisible());
    int width = 0;
    for (int column = 0; column < 4; ++column) {
        width += table->columnWidth(column);
        const QString header = table->headerItem()->text(column);
        QVERIFY2(table->fontMetrics().horizontalAdvance(header) + 2 * cellMargin <=
                     table->columnWidth(column),
                 qPrintable(header));
    }
    QCOMPARE(table->horizontalScrollBar()->isVisible(), width + 1 > table->viewport()->width());
}

void TestPageSizes::columnsAreInProportionToTheFont_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("list");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("width");
    const auto row = [](int page, const char* list, int column, int width) {
        QTest::addRow("page %d, %s, %d", page, list, column)
            << page << QString::fromLatin1(list) << column << width;
    };
    row(3, "summaryTable", 0, 50);
    row(3, "hubTable", 0, 250);
    row(3, "peripheralTable", 0, 250);
    row(5, "roomGroupList", 1, 40);
    row(5, "peripheralTable", 0, 200);
    row(5, "peripheralTable", 2, 70);
    row(5, "peripheralTable", 4, 50);
    row(5, "peripheralTable", 5, 60);
    row(6, "roomGroupList", 1, 40);
    row(6, "speakerTable", 0, 200);
    row(6, "speakerTable", 5, 60);
    row(7, "roomGroupList", 2, 100);
    row(8, "hubList", 0, 250);
}

void TestPageSizes::columnsAreInProportionToTheFont()
{
    QFETCH(const int, page);
    QFETCH(const QString, list);
    QFETCH(const int, column);
    QFETCH(const int, width);
    for (const int points : {14, 16}) {
        setFontSize(points);
        const FilledWizard wizard(page);
        QCOMPARE(listOf(wizard, list)->columnWidth(column), qRound(width * points / 10.0));
        setFontSize(usualPoints);
        settle();
        QCOMPARE(listOf(wizard, list)->columnWidth(column), width);
    }
}

void TestPageSizes::namesThatAreCutAreToldWhole_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("list");
    QTest::newRow("page 3") << 3 << QStringLiteral("peripheralTable");
    QTest::newRow("page 5") << 5 << QStringLiteral("peripheralTable");
    QTest::newRow("page 6") << 6 << QStringLiteral("speakerTable");
}

void TestPageSizes::namesThatAreCutAreToldWhole()
{
    QFETCH(const int, page);
    QFETCH(const QString, list);
    const FilledWizard wizard(page);
    QTreeWidget* table = listOf(wizard, list);
    int cut = 0;
    for (int i = 0; i < table->topLevelItemCount(); ++i) {
        table->scrollToItem(table->topLevelItem(i));
        const QModelIndex cell = table->model()->index(i, 0);
        const QString name = cell.data().toString();
        const bool isCut = name.size() == 64;
        QCOMPARE(isTold(table, cell), isCut);
        cut += isCut ? 1 : 0;
    }
    QVERIFY(cut > 0);
}

void TestPageSizes::aPresetNameThatIsCutIsToldWhole()
{
    const FilledWizard wizard(7);
    const QList<QLineEdit*> fields = wizard.shown<QLineEdit>();
    QCOMPARE(fields.first()->toolTip(), fields.first()->text());
    fields.first()->setText(QStringLiteral("short"));
    QCOMPARE(fields.first()->toolTip(), QString());
    QCOMPARE(fields.last()->toolTip(), QString());
}

void TestPageSizes::theTitleStaysAsItIs()
{
    QFETCH(const int, points);
    setFontSize(points);
    const FilledWizard wizard(1);
    const auto* title = wizard.window->findChild<QLabel*>(QStringLiteral("titleLabel"));
    QCOMPARE(title->font().pointSizeF(), 14.0);
    setFontSize(usualPoints);
    QCOMPARE(title->font().pointSizeF(), 14.0);
}

void TestPageSizes::aSavedSizeIsBroughtBackWithinTheScreen()
{
    QFETCH(const int, points);
    setFontSize(points);
    FilledWizard wizard(5);
    const QSize screen = wizard.window->screen()->availableSize();
    wizard.window->resize(screen + QSize(40, 40));
    const QString file = QDir::homePath() + QStringLiteral("/saved.dat");
    wizard.doc.setData(3, {{QStringLiteral("DataType:Size=QSize"), wizard.window->size()}});
    QVERIFY(wizard.doc.saveResume(file));
    const QString folder =
        QDir::homePath() + QStringLiteral("/AppData/Roaming/Korvane/Nodewise/Tessel");
    QVERIFY(QDir().mkpath(folder));
    QVERIFY(QFile::rename(file, folder + QStringLiteral("/resume.dat")));

    const FilledWizard resumed(1);
    QVERIFY(!QFile::exists(folder + QStringLiteral("/resume.dat")));
    settle();
    checkWindow(resumed);
}

void TestPageSizes::aWindowAtTheEdgeIsBroughtBackWhole()
{
    const FilledWizard wizard(5);
    const QRect screen = wizard.window->screen()->availableGeometry();
    wizard.window->move(screen.right() - 300, screen.bottom() - 200);
    setFontSize(11);
    settle();
    const QRect frame = wizard.window->frameGeometry();
    QVERIFY(screen.contains(frame) || frame.left() == screen.left());
    QVERIFY(frame.bottom() <= screen.bottom());
}

TESSEL_TEST_MAIN(TestPageSizes)
#include "tst_pagesizes.moc"
