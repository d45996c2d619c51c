#include "contrast.h"
#include "darkpalette.h"
#include "devicequeries.h"
#include "hands.h"
#include "layoutqueries.h"
#include "mainwindow.h"
#include "pagefixtures.h"
#include "removebutton.h"
#include "sessionqueries.h"
#include "showntexts.h"
#include "svgbutton.h"
#include "tablefixtures.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "wizardpage.h"

#include <QApplication>
#include <QMenu>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <QTreeWidget>

#include <memory>

namespace {

/// A hall of two rooms with every kind of device, one hub too many in the first.
void fillHall(TesselDoc& doc)
{
    setNicIndex(doc, 7); // handed over, so that nothing is looked for
    drawRooms(doc, 2);
    int number = 0;
    for (const char* model : {"PX-HB", "PX-HB", "PX-DL8", "LQA4-08S", "PNB-QE7"}) {
        for (int room = 1; room <= 2; ++room) {
            const QString label = QStringLiteral("dev-%1").arg(++number);
            const int place = number == 2 ? 1 : room;
            addTestDevice(doc, label, QLatin1String(model),
                          QStringLiteral("127.62.7.%1").arg(number), place);
        }
    }
    addTestLayout(doc, 1, QStringLiteral("1/2"));
    addTestLayout(doc, 2, QStringLiteral("1+2"));
}

/// The wizard's window on one of its pages.
struct Wizard
{
    explicit Wizard(int page)
    {
        fillHall(doc);
        window = std::make_unique<MainWindow>(nullptr, &doc);
        QFont font = window->font();
        font.setStyleStrategy(QFont::NoAntialias); // for one colour to be that of a text
        window->setFont(font);
        window->resize(window->maximumSize());
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
        while (stack()->currentIndex() < page - 1) {
            window->next();
        }
        QCoreApplication::processEvents();
    }

    QStackedWidget* stack() const
    {
        return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    }

    QWidget& page() const { return *stack()->currentWidget(); }

    QTreeWidget* peripherals() const
    {
        for (auto* table : page().findChildren<QTreeWidget*>(QStringLiteral("peripheralTable"))) {
            if (table->isVisible()) {
                return table;
            }
        }
        return nullptr;
    }

    RemoveButton* removeButton(int row) const
    {
        constexpr int column = 5;
        return qobject_cast<RemoveButton*>(
            peripherals()->itemWidget(peripherals()->topLevelItem(row), column));
    }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

/// Whatever the window shows has to stand out from its ground.
void verifyTexts(const Wizard& wizard, const char* when)
{
    if (QWidget* focused = wizard.window->focusWidget()) {
        focused->clearFocus(); // styles lay a veil over the text of the cell that has it
    }
    QCoreApplication::processEvents();
    const QImage picture = wizard.window->grab().toImage();
    const QList<ShownText> texts = shownTexts(*wizard.window);
    QVERIFY(!texts.isEmpty());
    for (const ShownText& text : texts) {
        const double found = shownContrast(picture, text.place);
        // The colours of a picture are those of the palette, rounded.
        QVERIFY2(found > text.needed - 0.01, qPrintable(QStringLiteral("%1: %2 has %3, not %4")
                                                            .arg(QLatin1String(when), text.name)
                                                            .arg(found)
                                                            .arg(text.needed)));
    }
}

void addPages()
{
    QTest::addColumn<int>("page");
    for (int page = 1; page <= pageCount; ++page) {
        QTest::addRow("page %d", page) << page;
    }
}

void addDesktops()
{
    QTest::addColumn<bool>("startsDark");
    QTest::addColumn<bool>("endsDark");
    QTest::newRow("light") << false << false;
    QTest::newRow("dark") << true << true;
    QTest::newRow("turned dark") << false << true;
    QTest::newRow("turned light") << true << false;
}

void addLists()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("list");
    const auto row = [](int page, const char* list) {
        QTest::addRow("page %d: %s", page, list) << page << QString::fromLatin1(list);
    };
    row(3, "hubTable");
    row(4, "layoutList");
    row(5, "roomGroupList");
    row(5, "summaryTable");
    row(5, "peripheralTable");
    row(6, "speakerTable");
    row(7, "roomGroupList");
    row(8, "hubList");
}

/// A widget with the ground that it has in its window.
QImage pictureOf(const QWidget& widget)
{
    const QRect place(widget.mapTo(widget.window(), QPoint()), widget.size());
    return widget.window()->grab(place).toImage();
}

/// How much the pixels that differ between two pictures stand out from what was there before.
double changedContrast(const QImage& before, const QImage& after)
{
    double most = 1;
    for (int y = 0; y < before.height(); ++y) {
        for (int x = 0; x < before.width(); ++x) {
            most = std::max(most, contrast(before.pixelColor(x, y), after.pixelColor(x, y)));
        }
    }
    return most;
}

} // namespace

/// What is shown on a light desktop and on a dark one, and on one that changes meanwhile.
class TestDesktopColors : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QApplication::setPalette(m_light); }

    void everyTextOfEveryPageCanBeRead_data() { addPages(); }
    void everyTextOfEveryPageCanBeRead();
    void textsCanBeReadAfterRemoveRevertAndReset_data() { addDesktops(); }
    void textsCanBeReadAfterRemoveRevertAndReset();
    void aRemovedDeviceLooksRemovedAlsoWhileSelected_data() { addDesktops(); }
    void aRemovedDeviceLooksRemovedAlsoWhileSelected();
    void thePencilIsSeenInEveryRow_data() { addDesktops(); }
    void thePencilIsSeenInEveryRow();
    void theMarkOfTheKeyboardIsSeenInEveryRow_data() { addDesktops(); }
    void theMarkOfTheKeyboardIsSeenInEveryRow();
    void theDarkHidesNoCellThatTheKeyboardIsIn_data();
    void theDarkHidesNoCellThatTheKeyboardIsIn();
    void aSelectedRowShowsWhetherTheKeyboardIsInIt_data();
    void aSelectedRowShowsWhetherTheKeyboardIsInIt();
    void aSelectionIsSeenWhileTheKeyboardIsElsewhere_data() { addLists(); }
    void aSelectionIsSeenWhileTheKeyboardIsElsewhere();
    void theMenuOfARoomCanBeRead_data() { addDesktops(); }
    void theMenuOfARoomCanBeRead();
    void theGridsLookTheSameOnEveryDesktop_data();
    void theGridsLookTheSameOnEveryDesktop();

private:
    void turn(bool dark) const { QApplication::setPalette(dark ? darkPalette() : m_light); }
    void start() const;
    void change() const;

    QPalette m_light = QApplication::palette();
};

/// The desktop that a test begins on, before its window is made.
void TestDesktopColors::start() const
{
    QFETCH(const bool, startsDark);
    turn(startsDark);
}

/// The desktop that it ends on, while the window is shown.
void TestDesktopColors::change() const
{
    QFETCH(const bool, endsDark);
    turn(endsDark);
    QCoreApplication::processEvents();
}

void TestDesktopColors::everyTextOfEveryPageCanBeRead()
{
    QFETCH(const int, page);
    {
        const Wizard wizard(page);
        verifyTexts(wizard, "light");
        turn(true);
        verifyTexts(wizard, "turned dark");
        turn(false);
        verifyTexts(wizard, "light again");
    }
    turn(true);
    const Wizard wizard(page);
    verifyTexts(wizard, "dark");
    turn(false);
    verifyTexts(wizard, "turned light");
}

void TestDesktopColors::textsCanBeReadAfterRemoveRevertAndReset()
{
    start();
    const Wizard wizard(5);
    press(wizard.removeButton(0));
    press(wizard.removeButton(1));
    press(wizard.removeButton(1));
    press(wizard.removeButton(2));
    change();
    verifyTexts(wizard, "one reverted");
    press(buttonOf(wizard.page(), "resetButton"));
    verifyTexts(wizard, "after Reset");
    QTest::keyClick(wizard.peripherals(), Qt::Key_Home);
    verifyTexts(wizard, "the first selected");
}

void TestDesktopColors::aRemovedDeviceLooksRemovedAlsoWhileSelected()
{
    start();
    const Wizard wizard(5);
    press(wizard.removeButton(0));
    change();
    constexpr double difference = 1.5;
    QTreeWidget* table = wizard.peripherals();
    for (const auto mode : {QTreeWidget::NoSelection, QTreeWidget::MultiSelection}) {
        table->clearSelection();
        table->setSelectionMode(mode);
        table->selectAll();
        const QImage picture = table->viewport()->grab().toImage();
        for (const int column : {0, 2, 3, 4}) {
            const auto shown = [&](int row) {
                const QModelIndex cell = table->model()->index(row, column);
                return shownColors(picture, table->visualRect(cell).adjusted(3, 3, -3, -3));
            };
            QCOMPARE(shown(0).ground, shown(1).ground);
            QVERIFY(contrast(shown(0).text, shown(0).ground) >= readableContrast);
            QVERIFY(contrast(shown(0).text, shown(1).text) >= difference);
        }
    }
}

void TestDesktopColors::thePencilIsSeenInEveryRow()
{
    start();
    const Wizard wizard(3);
    QTreeWidget* table = wizard.peripherals();
    Hands::clickRow(table->topLevelItem(0));
    change();
    const QList<SvgButton*> pencils = table->findChildren<SvgButton*>();
    QCOMPARE(pencils.size(), table->topLevelItemCount());
    for (SvgButton* pencil : pencils) {
        QVERIFY(shownContrast(pictureOf(*pencil), pencil->rect()) >= readableContrast);
        QTest::mousePress(pencil, Qt::LeftButton);
        QVERIFY(shownContrast(pictureOf(*pencil), pencil->rect()) >= readableContrast);
        pencil->clearFocus(); // which lets go without pressing it
    }
}

void TestDesktopColors::theMarkOfTheKeyboardIsSeenInEveryRow()
{
    start();
    const Wizard wizard(5);
    RemoveButton* button = wizard.removeButton(0);
    press(button); // which selects its row
    change();
    for (int i = 0; i < 2; ++i) {
        button->setFocus(Qt::MouseFocusReason);
        const QImage before = pictureOf(*button);
        button->clearFocus();
        button->setFocus(Qt::ShortcutFocusReason);
        QVERIFY(changedContrast(before, pictureOf(*button)) >= readableContrast);
        button->clearFocus();
        wizard.peripherals()->setSelectionMode(QAbstractItemView::NoSelection);
        wizard.peripherals()->clearSelection();
    }
}

void TestDesktopColors::theDarkHidesNoCellThatTheKeyboardIsIn_data()
{
    addLists();
    // Nothing is ever selected in it.
    QTest::newRow("page 3: summaryTable") << 3 << QStringLiteral("summaryTable");
}

void TestDesktopColors::theDarkHidesNoCellThatTheKeyboardIsIn()
{
    QFETCH(const int, page);
    QFETCH(const QString, list);
    turn(true);
    const Wizard wizard(page);
    QTreeWidget* table = tableOf(wizard.page(), list.toLatin1().constData());
    table->setCurrentItem(table->topLevelItem(0), 0, QItemSelectionModel::Clear);
    table->clearFocus();
    const QImage before = table->viewport()->grab().toImage();
    table->setFocus(Qt::TabFocusReason);
    QVERIFY(changedContrast(before, table->viewport()->grab().toImage()) >= readableContrast);
}

void TestDesktopColors::aSelectedRowShowsWhetherTheKeyboardIsInIt_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("list");
    QTest::addColumn<bool>("dark");
    const auto row = [](int page, const char* list) {
        for (const bool dark : {false, true}) {
            QTest::addRow("page %d: %s, %s", page, list, dark ? "dark" : "light")
                << page << QString::fromLatin1(list) << dark;
        }
    };
    row(3, "hubTable");
    row(4, "layoutList");
    row(5, "roomGroupList");
    row(5, "summaryTable");
    row(5, "peripheralTable");
    row(8, "hubList");
}

void TestDesktopColors::aSelectedRowShowsWhetherTheKeyboardIsInIt()
{
    QFETCH(const int, page);
    QFETCH(const QString, list);
    QFETCH(const bool, dark);
    turn(dark);
    const Wizard wizard(page);
    QTreeWidget* table = tableOf(wizard.page(), list.toLatin1().constData());
    if (page == 5 && list == QStringLiteral("peripheralTable")) {
        press(wizard.removeButton(0)); // a removed device has a colour of its own
    }
    for (int column = 0; column < table->columnCount(); ++column) {
        const QWidget* held = table->itemWidget(table->topLevelItem(0), column);
        if (held && held->focusPolicy() != Qt::NoFocus) {
            continue; // it has a mark of its own
        }
        table->setCurrentItem(table->topLevelItem(0), column);
        table->clearFocus();
        QCoreApplication::processEvents();
        const QImage before = table->viewport()->grab().toImage();
        table->setFocus(Qt::TabFocusReason);
        const double found = changedContrast(before, table->viewport()->grab().toImage());
        QVERIFY2(found >= readableContrast,
                 qPrintable(QStringLiteral("column %1: %2").arg(column).arg(found)));
    }
}

void TestDesktopColors::aSelectionIsSeenWhileTheKeyboardIsElsewhere()
{
    QFETCH(const int, page);
    QFETCH(const QString, list);
    QPalette pale = m_light;
    pale.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xF0, 0xF0, 0xF0));
    pale.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(pale);
    const Wizard wizard(page);
    QTreeWidget* table = tableOf(wizard.page(), list.toLatin1().constData());
    table->topLevelItem(0)->setSelected(true);
    table->clearFocus();
    const QRect cell = table->visualRect(table->model()->index(0, 0)).adjusted(3, 3, -3, -3);
    const auto [ground, text] = shownColors(table->viewport()->grab().toImage(), cell);
    QVERIFY(contrast(ground, pale.color(QPalette::Base)) >= groundContrast);
    QVERIFY(contrast(ground, text) >= readableContrast);
}

void TestDesktopColors::theMenuOfARoomCanBeRead()
{
    QFETCH(const bool, endsDark);
#ifdef Q_OS_WIN
    if (endsDark) {
        QSKIP("menus keep the system's colours there, which are light ones with this Qt");
    }
#endif
    start();
    const Wizard wizard(4);
    auto* picker = wizard.page().findChild<QWidget*>(QStringLiteral("tessel"));
    picker->setFocus();
    QTest::keyClick(picker, Qt::Key_Space);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    QVERIFY(menu);
    change();
    for (const bool checked : {false, true}) {
        QAction* action = menu->actions().first();
        action->setChecked(checked);
        const QImage picture = menu->grab().toImage();
        const QRect row = menu->actionGeometry(action);
        const QRect box(row.topLeft(), QSize(row.height() + 2, row.height()));
        QVERIFY(shownContrast(picture, row.adjusted(box.width() + 2, 2, -2, -2)) >= textContrast);
        // On a light desktop the box is as pale as the desktop draws it, but not the check mark.
        if (checked || endsDark) {
            QVERIFY(shownContrast(picture, box) >= readableContrast);
        }
    }
    menu->close();
}

void TestDesktopColors::theGridsLookTheSameOnEveryDesktop_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("grid");
    QTest::newRow("step 2") << 2 << QStringLiteral("roomEditor");
    QTest::newRow("step 3") << 3 << QStringLiteral("roomPicture");
    QTest::newRow("step 4") << 4 << QStringLiteral("tessel");
}

void TestDesktopColors::theGridsLookTheSameOnEveryDesktop()
{
    QFETCH(const int, page);
    QFETCH(const QString, grid);
    const Wizard wizard(page);
    auto* shown = wizard.page().findChild<QWidget*>(grid);
    const QImage light = shown->grab().toImage();
    turn(true);
    QCoreApplication::processEvents();
    QCOMPARE(shown->grab().toImage(), light);
}

TESSEL_TEST_MAIN(TestDesktopColors)
#include "tst_desktopcolors.moc"
