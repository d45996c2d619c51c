#include "alldialogs.h"
#include "dialoganswerer.h"
#include "logindialog.h"
#include "mainwindow.h"
#include "sessionqueries.h"
#include "tesseldoc.h"
#include "testcase.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QScreen>
#include <QTest>
#include <QTreeWidget>
#include <QWindow>

namespace {

void checkIsOverMiddle(const QWidget& dialog, const QWidget& window)
{
    const QPoint off = dialog.geometry().center() - window.geometry().center();
    QVERIFY2(off.manhattanLength() <= 2,
             qPrintable(QStringLiteral("%1, %2 off").arg(off.x()).arg(off.y())));
}

} // namespace

class TestDialogPlaces : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void everyDialogOpensOverTheMiddleOfItsWindow_data();
    void everyDialogOpensOverTheMiddleOfItsWindow();
    void theInterfaceDialogOpensOverTheMiddleOfTheWizard();
    void theHubsOfLogInsThatAreOpenTogetherAreAllInSight();
    void messageBoxesCarryTheIconOfTheProgram();
};

void TestDialogPlaces::everyDialogOpensOverTheMiddleOfItsWindow_data()
{
    QTest::addColumn<QString>("name");
    for (const QString& name : dialogNames()) {
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestDialogPlaces::everyDialogOpensOverTheMiddleOfItsWindow()
{
    QFETCH(const QString, name);
    const auto window = makeWindow();
    // On a page: what counts is the window that this is in.
    QWidget page(window.get());
    page.setGeometry(600, 300, 50, 50);
    QDialog* dialog = makeDialog(name, &page);
    dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(dialog));
    checkIsOverMiddle(*dialog, *window);
}

void TestDialogPlaces::theInterfaceDialogOpensOverTheMiddleOfTheWizard()
{
    TesselDoc doc(nullptr);
    MainWindow window(nullptr, &doc);
    window.show();
    const DialogAnswerer answer("networkDialog", [&window](QWidget* dialog) {
        // A system that places windows late.
        window.move(window.pos() + QPoint(-40, 60));
        checkIsOverMiddle(*dialog, window);
        pressing("Cancel")(dialog);
    });
    QCOMPARE(QApplication::exec(), 0);
}

void TestDialogPlaces::theHubsOfLogInsThatAreOpenTogetherAreAllInSight()
{
    const auto window = makeWindow();
    QWidget page(window.get());
    QList<QPoint> places;
    for (int hub = 1; hub <= 4; ++hub) {
        const QString name = QStringLiteral("Hub-%1").arg(hub);
        auto* dialog = new LoginDialog(&page, QStringLiteral("10.0.0.%1").arg(hub), name);
        dialog->show();
        QVERIFY(!places.contains(dialog->pos()));
        places.append(dialog->pos());
        auto* list = dialog->findChild<QTreeWidget*>();
        QCOMPARE(list->topLevelItem(0)->text(0), name);
        QVERIFY(list->viewport()->rect().contains(list->visualItemRect(list->topLevelItem(0))));
    }
}

void TestDialogPlaces::messageBoxesCarryTheIconOfTheProgram()
{
    TesselDoc doc(nullptr);
    setNicIndex(doc, 7);
    MainWindow window(nullptr, &doc);
    window.show();
    const QPixmap icon = window.windowIcon().pixmap(32, 32);
    QVERIFY(!icon.isNull());
    QMessageBox ofNoWindow(QMessageBox::Warning, QString(), QStringLiteral("Text"));
    QMessageBox ofTheWindow(QMessageBox::Warning, QString(), QStringLiteral("Text"),
                            QMessageBox::Ok, &window);
    for (QMessageBox* box : {&ofNoWindow, &ofTheWindow}) {
        box->show();
        QCOMPARE(box->windowHandle()->icon().pixmap(32, 32).toImage(), icon.toImage());
    }
}

TESSEL_TEST_MAIN(TestDialogPlaces)
#include "tst_dialogplaces.moc"
