#include "alldialogs.h"
#include "testcase.h"

#include <QApplication>
#include <QDialog>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTreeWidget>

namespace {

/// A cell's texts stand this far from its sides.
constexpr int cellMargin = 3;

void setFontSize(int points)
{
    QFont font = QApplication::font();
    font.setPointSize(points);
    QApplication::setFont(font);
}

template <typename Widget>
QList<const Widget*> shown(const QDialog& dialog)
{
    QList<const Widget*> found;
    for (const auto* widget : dialog.findChildren<Widget*>()) {
        if (widget->isVisible()) {
            found.append(widget);
        }
    }
    return found;
}

QByteArray nameOf(const QWidget* widget)
{
    const QByteArray text = widget->property("text").toByteArray();
    return widget->metaObject()->className() + QByteArray(" ") + widget->objectName().toUtf8() +
           ' ' + text;
}

template <typename Widget>
void checkRoom(const QDialog& dialog)
{
    for (const Widget* widget : shown<Widget>(dialog)) {
        const QSize needed = widget->minimumSizeHint();
        QVERIFY2(widget->width() >= needed.width() && widget->height() >= needed.height(),
                 nameOf(widget).constData());
        QVERIFY2(widget->parentWidget()->rect().contains(widget->geometry()),
                 nameOf(widget).constData());
    }
}

void checkPlaces(const QDialog& dialog)
{
    const auto widgets = dialog.findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    for (const QWidget* one : widgets) {
        for (const QWidget* other : widgets) {
            const bool bothShown = one->isVisible() && other->isVisible();
            QVERIFY2(one == other || !bothShown || !one->geometry().intersects(other->geometry()),
                     (nameOf(one) + " over " + nameOf(other)).constData());
        }
    }
}

void checkCells(const QTreeWidget* list)
{
    for (int column = 0; column < list->columnCount(); ++column) {
        const QString header = list->headerItem()->text(column);
        const int room = list->header()->sectionSize(column) - 2 * cellMargin;
        QVERIFY2(list->fontMetrics().horizontalAdvance(header) <= room, qPrintable(header));
        for (int i = 0; i < list->topLevelItemCount(); ++i) {
            const QString text = list->topLevelItem(i)->text(column);
            QVERIFY2(list->fontMetrics().horizontalAdvance(text) <= room, qPrintable(text));
        }
    }
    QVERIFY(list->header()->length() <= list->viewport()->width());
    for (int i = 0; i < list->topLevelItemCount(); ++i) {
        QVERIFY(list->viewport()->rect().contains(list->visualItemRect(list->topLevelItem(i))));
    }
}

void checkLook(const QDialog& dialog)
{
    checkRoom<QLabel>(dialog);
    checkRoom<QPushButton>(dialog);
    checkRoom<QLineEdit>(dialog);
    checkPlaces(dialog);
    for (const auto* list : shown<QTreeWidget>(dialog)) {
        checkCells(list);
    }
}

/// Some desktops' letters are higher than their size in points tells.
QSize neededHeight(const QDialog& dialog)
{
    return {0, dialog.layout()->totalMinimumSize().height()};
}

void addDialogsAndFonts()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("points");
    for (const QString& name : dialogNames()) {
        for (const int points : {10, 14, 16}) {
            QTest::addRow("%s, %d points", qPrintable(name), points) << name << points;
        }
    }
}

} // namespace

/// Run once for each kind of screen that the wizard is used on.
class TestDialogSizes : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { setFontSize(10); }
    void everyTextHasRoomOnTheScreen_data() { addDialogsAndFonts(); }
    void everyTextHasRoomOnTheScreen();
    void everyTextHasRoomWhenTheFontGrowsWhileOpen_data() { addDialogsAndFonts(); }
    void everyTextHasRoomWhenTheFontGrowsWhileOpen();
    void sizesAreInProportionToTheFont_data();
    void sizesAreInProportionToTheFont();
    void higherFieldsMakeAPromptHigher_data();
    void higherFieldsMakeAPromptHigher();
};

void TestDialogSizes::everyTextHasRoomOnTheScreen()
{
    QFETCH(const QString, name);
    QFETCH(const int, points);
    setFontSize(points);
    const auto window = makeWindow();
    QDialog* dialog = makeDialog(name, window.get());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    QVERIFY(dialog->screen()->availableGeometry().contains(dialog->frameGeometry()));
    checkLook(*dialog);
}

void TestDialogSizes::everyTextHasRoomWhenTheFontGrowsWhileOpen()
{
    QFETCH(const QString, name);
    QFETCH(const int, points);
    setFontSize(10);
    const auto window = makeWindow();
    QDialog* dialog = makeDialog(name, window.get());
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    setFontSize(points);
    QCoreApplication::processEvents(); // the layout grows, and the window with it
    QCoreApplication::processEvents(); // the layout fills the window
    const QSize room = dialog->screen()->availableGeometry().size();
    QCOMPARE(dialog->frameGeometry().size().boundedTo(room), dialog->frameGeometry().size());
    checkLook(*dialog);
}

void TestDialogSizes::sizesAreInProportionToTheFont_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QSize>("least");
    QTest::newRow("interface") << QStringLiteral("network") << QSize(400, 300);
    QTest::newRow("log-in") << QStringLiteral("log-in") << QSize(450, 220);
    QTest::newRow("first password") << QStringLiteral("first password") << QSize(450, 250);
}

void TestDialogSizes::sizesAreInProportionToTheFont()
{
    QFETCH(const QString, name);
    QFETCH(const QSize, least);
    QWidget window;
    for (const int points : {8, 9, 10}) {
        setFontSize(points);
        const QDialog* dialog = makeDialog(name, &window);
        QCOMPARE(dialog->minimumSize(), least.expandedTo(neededHeight(*dialog)));
    }
    for (const int points : {12, 14, 16}) {
        setFontSize(points);
        const QSize room = window.screen()->availableGeometry().size() - QSize(16, 40);
        const QDialog* dialog = makeDialog(name, &window);
        QCOMPARE(dialog->minimumSize(),
                 (least * points / 10.0).boundedTo(room).expandedTo(neededHeight(*dialog)));
    }
}

void TestDialogSizes::higherFieldsMakeAPromptHigher_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("log-in") << QStringLiteral("log-in");
    QTest::newRow("log-in refused") << QStringLiteral("log-in refused");
    QTest::newRow("first password") << QStringLiteral("first password");
}

void TestDialogSizes::higherFieldsMakeAPromptHigher()
{
    QFETCH(const QString, name);
    const auto window = makeWindow();
    QDialog* dialog = makeDialog(name, window.get());
    auto* field = dialog->findChild<QLineEdit*>();
    field->setMinimumHeight(dialog->minimumHeight() / 2);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    checkLook(*dialog);
    const int before = dialog->height();
    field->setMinimumHeight(before);
    QTRY_VERIFY(dialog->height() > before);
    checkLook(*dialog);
    QCOMPARE(dialog->minimumHeight(), dialog->maximumHeight());
}

TESSEL_TEST_MAIN(TestDialogSizes)
#include "tst_dialogsizes.moc"
