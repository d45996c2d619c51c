#include "announcements.h"
#include "documentfixtures.h"
#include "mainwindow.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"
#include "wizardpage.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QTest>

#include <memory>

namespace {

// A hall of two rooms with a device of every class in each.
void fillHall(TesselDoc& doc)
{
    setNicIndex(doc, 7); // handed over, so that nothing is looked for
    const QStringList models{QStringLiteral("PX-HB"), QStringLiteral("PX-DL8"),
                             QStringLiteral("LQA4-08S"), QStringLiteral("PNB-QE7")};
    TestHall hall{.rooms = 2, .layouts = {QStringLiteral("1/2"), QStringLiteral("1+2")}};
    for (int room = 1; room <= hall.rooms; ++room) {
        for (const QString& model : models) {
            hall.devices.append(
                {.label = QStringLiteral("%1-%2").arg(model).arg(room),
                 .model = model,
                 .address = QStringLiteral("127.62.0.%1").arg(hall.devices.size() + 1),
                 .room = room});
        }
    }
    enterHall(doc, hall);
}

// The wizard's window on one of its pages.
struct Wizard
{
    explicit Wizard(int page)
    {
        fillHall(doc);
        window = std::make_unique<MainWindow>(nullptr, &doc);
        window->show();
        while (stack()->currentIndex() < page - 1) {
            window->next();
        }
        QApplication::setActiveWindow(window.get());
        QCoreApplication::processEvents();
    }

    QStackedWidget* stack() const
    {
        return window->findChild<QStackedWidget*>(QStringLiteral("pageStack"));
    }

    template <typename Widget = QWidget>
    QList<Widget*> shown() const
    {
        QList<Widget*> found;
        for (auto* widget : window->findChildren<Widget*>()) {
            if (widget->isVisible()) {
                found.append(widget);
            }
        }
        return found;
    }

    QList<QWidget*> tabStops() const
    {
        QList<QWidget*> stops;
        for (QWidget* widget : shown()) {
            if (widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus)) {
                stops.append(widget);
            }
        }
        return stops;
    }

    QRect placeOf(const QWidget* widget) const
    {
        return {widget->mapTo(window.get(), QPoint()), widget->size()};
    }

    TesselDoc doc{nullptr};
    std::unique_ptr<MainWindow> window;
};

QString nameOf(QWidget* widget)
{
    // Qt tells some platforms what a combo box shows as its name, and its own name otherwise.
    if (!widget->accessibleName().isEmpty()) {
        return widget->accessibleName();
    }
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

// For messages of failed tests.
QByteArray describe(QWidget* widget)
{
    return QByteArray(widget->metaObject()->className()) + ' ' + widget->objectName().toUtf8() +
           " \"" + nameOf(widget).toUtf8() + '"';
}

// Lists stand to the left of what they choose from, and everything in a row left to right; apart
// from that the eye goes down.
bool isReadAfter(const QRect& next, const QRect& previous)
{
    if (next.top() > previous.bottom() || next.left() > previous.right()) {
        return true;
    }
    return previous.contains(next) || (next.top() >= previous.top() && next.intersects(previous));
}

// The enabled button that stands farthest to the right: the end of the page's reading order.
QPushButton* lastButton(const Wizard& wizard)
{
    QPushButton* last = nullptr;
    for (auto* button : wizard.shown<QPushButton>()) {
        if (button->isEnabled() && button->parentWidget() == wizard.stack()->currentWidget() &&
            (last == nullptr || wizard.placeOf(button).left() > wizard.placeOf(last).left())) {
            last = button;
        }
    }
    return last;
}

void addPages()
{
    QTest::addColumn<int>("page");
    for (int page = 1; page <= pageCount; ++page) {
        QTest::addRow("page %d", page) << page;
    }
}

} // namespace

/// What has to hold on every page for people who use the keyboard or a screen reader.
class TestAccessibility : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyTabStopHasANameOfItsOwn_data() { addPages(); }
    void everyTabStopHasANameOfItsOwn();
    void windowAndPageFrameHaveARoleAndAName_data() { addPages(); }
    void windowAndPageFrameHaveARoleAndAName();
    void gridsHaveARoleAndAName_data();
    void gridsHaveARoleAndAName();
    void aNewPageIsToldOnceByItsTitle();
    void tabVisitsEverythingInReadingOrder_data() { addPages(); }
    void tabVisitsEverythingInReadingOrder();
    void nextByKeyGoesOnAtTheTopOfTheNewPage_data();
    void nextByKeyGoesOnAtTheTopOfTheNewPage();
    void paintedButtonsAreButtonsWithAToolTip_data();
    void paintedButtonsAreButtonsWithAToolTip();
    void titlesOfListsBelongToTheirLists_data();
    void titlesOfListsBelongToTheirLists();
    void textsBeginUnderTheTitle_data() { addPages(); }
    void textsBeginUnderTheTitle();
    void returnPressesTheButtonThatHasTheFocus_data() { addPages(); }
    void returnPressesTheButtonThatHasTheFocus();
    void aHeldReturnTurnsOnePage();
    void everyTextFitsIntoTheSmallestWindow_data() { addPages(); }
    void everyTextFitsIntoTheSmallestWindow();
};

void TestAccessibility::everyTabStopHasANameOfItsOwn()
{
    QFETCH(const int, page);
    const Wizard wizard(page);
    QSet<QString> names;
    for (QWidget* stop : wizard.tabStops()) {
        QVERIFY2(!nameOf(stop).trimmed().isEmpty(), describe(stop).constData());
        QVERIFY2(!names.contains(nameOf(stop)), describe(stop).constData());
        names.insert(nameOf(stop));
    }
    QVERIFY(!names.isEmpty());
}

void TestAccessibility::windowAndPageFrameHaveARoleAndAName()
{
    QFETCH(const int, page);
    const Wizard wizard(page);
    const auto* window = QAccessible::queryAccessibleInterface(wizard.window.get());
    QCOMPARE(window->role(), QAccessible::Window);
    QCOMPARE(window->text(QAccessible::Name), QStringLiteral("Divide / Combine Room Wizard"));
    const auto* frame = QAccessible::queryAccessibleInterface(wizard.stack()->currentWidget());
    QCOMPARE(frame->role(), QAccessible::Pane);
    QCOMPARE(frame->text(QAccessible::Name),
             wizard.window->findChild<QLabel*>(QStringLiteral("titleLabel"))->text());
}

void TestAccessibility::gridsHaveARoleAndAName_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("grid");
    QTest::addColumn<QAccessible::Role>("role");
    QTest::addColumn<QString>("name");
    QTest::newRow("drawing") << 2 << QStringLiteral("roomEditor") << QAccessible::Canvas
                             << QStringLiteral("Room design");
    QTest::newRow("picture") << 3 << QStringLiteral("roomPicture") << QAccessible::Graphic
                             << QStringLiteral("Room design");
    QTest::newRow("picker") << 4 << QStringLiteral("tessel") << QAccessible::Grouping
                            << QStringLiteral("Room combination");
}

void TestAccessibility::gridsHaveARoleAndAName()
{
    QFETCH(const int, page);
    QFETCH(const QString, grid);
    const Wizard wizard(page);
    const auto* told =
        QAccessible::queryAccessibleInterface(wizard.window->findChild<QWidget*>(grid));
    QTEST(told->role(), "role");
    QTEST(told->text(QAccessible::Name), "name");
}

void TestAccessibility::aNewPageIsToldOnceByItsTitle()
{
    const Wizard wizard(1);
    const Announcements announcements;
    if (!announcements.canHear()) {
        QSKIP("This system has no ear for what screen readers are told.");
    }
    wizard.window->next();
    wizard.window->next();
    QCOMPARE(Announcements::takeSaid(),
             QStringList({QStringLiteral("2. Room Design"),
                          QStringLiteral("3. Assign Devices to the rooms")}));
    wizard.window->back();
    wizard.window->back();
    Announcements::takeSaid();
    wizard.window->back(); // the first page has none before it
    QCOMPARE(Announcements::takeSaid(), QStringList());
}

void TestAccessibility::tabVisitsEverythingInReadingOrder()
{
    QFETCH(const int, page);
    const Wizard wizard(page);
    const QList<QWidget*> stops = wizard.tabStops();
    lastButton(wizard)->setFocus();
    QSet<QWidget*> visited;
    QWidget* previous = nullptr;
    for (qsizetype i = 0; i < stops.size(); ++i) {
        QTest::keyClick(wizard.window->focusWidget(), Qt::Key_Tab);
        QWidget* focused = wizard.window->focusWidget();
        if (previous != nullptr) {
            QVERIFY2(isReadAfter(wizard.placeOf(focused), wizard.placeOf(previous)),
                     (describe(focused) + " after " + describe(previous)).constData());
        }
        visited.insert(focused);
        previous = focused;
    }
    for (QWidget* stop : stops) {
        QVERIFY2(visited.contains(stop), describe(stop).constData());
    }
}

void TestAccessibility::nextByKeyGoesOnAtTheTopOfTheNewPage_data()
{
    QTest::addColumn<int>("page");
    for (const int page : {1, 2, 3, 4, 6, 7}) {
        QTest::addRow("from page %d", page) << page;
    }
}

void TestAccessibility::nextByKeyGoesOnAtTheTopOfTheNewPage()
{
    QFETCH(const int, page);
    const Wizard wizard(page);
    QPushButton* next = lastButton(wizard);
    QCOMPARE(next->text(), QStringLiteral("Next"));
    next->setFocus();
    QTest::keyClick(next, Qt::Key_Space);
    QCOMPARE(wizard.stack()->currentIndex(), page);
    const QWidget* focused = wizard.window->focusWidget();

    lastButton(wizard)->setFocus();
    QTest::keyClick(lastButton(wizard), Qt::Key_Tab);
    QCOMPARE(focused, wizard.window->focusWidget());
}

void TestAccessibility::paintedButtonsAreButtonsWithAToolTip_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("count");
    QTest::newRow("pencils and lamps of the eight devices") << 3 << 16;
    QTest::newRow("the link box") << 4 << 1;
    QTest::newRow("lamps and remove buttons of room 1") << 5 << 8;
    QTest::newRow("the lamp of the speaker in room 1") << 6 << 1;
    QTest::newRow("the lamps of the hubs") << 8 << 2;
}

void TestAccessibility::paintedButtonsAreButtonsWithAToolTip()
{
    QFETCH(const int, page);
    QFETCH(const int, count);
    const Wizard wizard(page);
    int found = 0;
    for (QWidget* widget : wizard.shown()) {
        if (widget->inherits("PressButton")) {
            ++found;
            QVERIFY2(!widget->toolTip().isEmpty(), describe(widget).constData());
            const QAccessible::Role role = QAccessible::queryAccessibleInterface(widget)->role();
            QVERIFY2(role == QAccessible::Button || role == QAccessible::CheckBox,
                     describe(widget).constData());
        }
    }
    QCOMPARE(found, count);
}

void TestAccessibility::titlesOfListsBelongToTheirLists_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("list");
    const auto row = [](int page, const char* title, const char* list) {
        QTest::addRow("page %d: %s", page, title)
            << page << QString::fromLatin1(title) << QString::fromLatin1(list);
    };
    row(3, "PX-HB", "hubTable");
    row(3, "Peripheral", "peripheralTable");
    row(5, "Select a room combination", "roomGroupList");
    row(5, "PX-HB", "hubTable");
    row(5, "Peripheral", "peripheralTable");
    row(6, "Select a room combination", "roomGroupList");
    row(6, "Speaker Position", "speakerTable");
    row(7, "Select a room combination", "roomGroupList");
    row(8, "PX-HB", "hubList");
}

void TestAccessibility::titlesOfListsBelongToTheirLists()
{
    QFETCH(const int, page);
    QFETCH(const QString, title);
    QFETCH(const QString, list);
    const Wizard wizard(page);
    int found = 0;
    for (const QLabel* label : wizard.shown<QLabel>()) {
        if (label->text() == title) {
            ++found;
            QVERIFY(label->buddy());
            QCOMPARE(label->buddy()->objectName(), list);
        }
    }
    QCOMPARE(found, 1);
}

void TestAccessibility::textsBeginUnderTheTitle()
{
    QFETCH(const int, page);
    const Wizard wizard(page);
    const auto* title = wizard.window->findChild<QLabel*>(QStringLiteral("titleLabel"));
    QRect first(0, wizard.window->height(), 0, 0);
    for (const QLabel* text : wizard.stack()->currentWidget()->findChildren<QLabel*>()) {
        if (text->isVisible() && wizard.placeOf(text).top() < first.top()) {
            first = wizard.placeOf(text);
        }
    }
    QCOMPARE(first.left(), wizard.placeOf(title).left());
}

void TestAccessibility::returnPressesTheButtonThatHasTheFocus()
{
    QFETCH(const int, page);
    const qsizetype buttons = Wizard(page).shown<QPushButton>().size();
    for (qsizetype i = 0; i < buttons; ++i) {
        const Wizard wizard(page);
        QPushButton* button = wizard.shown<QPushButton>().at(i);
        // What it does is up to other tests; "Execute" would look for hubs. Without a signal named,
        // Qt's record of accessible objects would not hear either that the button has gone.
        button->disconnect(SIGNAL(clicked()));
        button->setEnabled(true);
        const QSignalSpy clicked(button, SIGNAL(clicked()));
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
        QVERIFY2(clicked.count() == 1, describe(button).constData());
    }
}

void TestAccessibility::aHeldReturnTurnsOnePage()
{
    const Wizard wizard(1);
    lastButton(wizard)->setFocus();
    QTest::keyPress(wizard.window->focusWidget(), Qt::Key_Return);
    QCOMPARE(wizard.stack()->currentIndex(), 1);
    lastButton(wizard)->setFocus();
    QKeyEvent repeated(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(wizard.window->focusWidget(), &repeated);
    QCOMPARE(wizard.stack()->currentIndex(), 1);
}

void TestAccessibility::everyTextFitsIntoTheSmallestWindow()
{
    QFETCH(const int, page);
    const Wizard wizard(page);
    QCOMPARE(wizard.window->size(), wizard.window->minimumSize());
    for (QLabel* label : wizard.shown<QLabel>()) {
        const int height =
            label->wordWrap() ? label->heightForWidth(label->width()) : label->sizeHint().height();
        QVERIFY2(label->height() >= height, describe(label).constData());
        QVERIFY2(label->wordWrap() || label->width() >= label->sizeHint().width(),
                 describe(label).constData());
    }
    for (QPushButton* button : wizard.shown<QPushButton>()) {
        QVERIFY2(button->width() >= button->sizeHint().width(), describe(button).constData());
    }
}

TESSEL_TEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
