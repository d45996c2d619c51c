#include "dialogplace.h"
#include "testcase.h"

#include <QApplication>
#include <QDialog>
#include <QScreen>
#include <QTest>

#include <memory>
#include <vector>

class TestDialogPlace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void opensOverTheMiddleOfTheWindow();
    void opensThereAgainAfterItWasMoved();
    void keepsItsOwnSize();
    void goesWhereTheWindowGoes();
    void staysWhereItWasMovedRelativeToTheWindow();
    void staysOnTheScreen_data();
    void staysOnTheScreen();
    void noTwoLieExactlyOverEachOther();
    void noTwoLieExactlyOverEachOtherWhereTheScreenIsFull();
    void aPlaceThatIsFreeAgainIsTakenAgain();
    void withoutAWindowItIsLeftToTheSystem();
};

namespace {

struct Dialog : QDialog
{
    explicit Dialog(QWidget* parent, QSize size = {200, 100})
        : QDialog(parent)
    {
        setMinimumSize(size);
        new DialogPlace(this);
    }
};

struct Window : QWidget
{
    explicit Window(const QRect& place = {100, 150, 500, 400})
    {
        setGeometry(place);
        show();
    }
};

QPoint off(const QWidget& dialog, const QWidget& window)
{
    return dialog.geometry().center() - window.geometry().center();
}

/// So many dialogs of this size over one window, shown one after the other.
std::vector<std::unique_ptr<Dialog>> showDialogs(QWidget& window, QSize size, int count)
{
    std::vector<std::unique_ptr<Dialog>> dialogs;
    for (int i = 0; i < count; ++i) {
        dialogs.push_back(std::make_unique<Dialog>(&window, size));
        dialogs.back()->show();
    }
    return dialogs;
}

} // namespace

void TestDialogPlace::opensOverTheMiddleOfTheWindow()
{
    Window window;
    QWidget page(&window);
    Dialog dialog(&page);
    dialog.show();
    QCOMPARE(off(dialog, window), QPoint(0, 0));
}

void TestDialogPlace::opensThereAgainAfterItWasMoved()
{
    Window window;
    Dialog dialog(&window);
    dialog.show();
    dialog.move(7, 60);
    dialog.hide();
    dialog.show();
    QCOMPARE(off(dialog, window), QPoint(0, 0));
}

void TestDialogPlace::keepsItsOwnSize()
{
    Window window;
    Dialog dialog(&window);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(200, 100));
    QVERIFY(!dialog.testAttribute(Qt::WA_Resized));
}

void TestDialogPlace::goesWhereTheWindowGoes()
{
    Window window;
    Dialog dialog(&window);
    dialog.show();
    window.move(window.pos() + QPoint(33, -44));
    QCOMPARE(off(dialog, window), QPoint(0, 0));
    window.resize(540, 440);
    QCOMPARE(off(dialog, window), QPoint(0, 0));
}

void TestDialogPlace::staysWhereItWasMovedRelativeToTheWindow()
{
    Window window;
    Dialog dialog(&window);
    dialog.show();
    dialog.move(dialog.pos() + QPoint(50, 60));
    window.move(window.pos() + QPoint(11, 22));
    QCOMPARE(off(dialog, window), QPoint(50, 60));
}

void TestDialogPlace::staysOnTheScreen_data()
{
    QTest::addColumn<QPoint>("window");
    QTest::newRow("beyond the upper left corner") << QPoint(-600, -600);
    QTest::newRow("beyond the lower right corner") << QPoint(3000, 3000);
}

void TestDialogPlace::staysOnTheScreen()
{
    QFETCH(const QPoint, window);
    Window outside({window, QSize(500, 400)});
    Dialog dialog(&outside);
    dialog.show();
    QVERIFY(dialog.screen()->availableGeometry().contains(dialog.geometry()));
}

void TestDialogPlace::noTwoLieExactlyOverEachOther()
{
    Window window;
    const auto dialogs = showDialogs(window, {200, 100}, 4);
    QCOMPARE(off(*dialogs.front(), window), QPoint(0, 0));
    for (std::size_t i = 1; i < dialogs.size(); ++i) {
        const QPoint step = dialogs.at(i)->pos() - dialogs.at(i - 1)->pos();
        QVERIFY(step.x() >= 16 && step.x() <= 40);
        QCOMPARE(step.y(), step.x());
    }
}

void TestDialogPlace::noTwoLieExactlyOverEachOtherWhereTheScreenIsFull()
{
    Window window;
    const QSize screen = window.screen()->availableGeometry().size();
    const auto dialogs = showDialogs(window, screen - QSize(20, 40), 4);
    QSet<QPoint> places;
    for (const auto& dialog : dialogs) {
        QVERIFY(dialog->screen()->availableGeometry().contains(dialog->geometry()));
        places.insert(dialog->pos());
    }
    QCOMPARE(places.size(), 4);
}

void TestDialogPlace::aPlaceThatIsFreeAgainIsTakenAgain()
{
    Window window;
    const auto dialogs = showDialogs(window, {200, 100}, 2);
    dialogs.front()->hide();
    Dialog next(&window);
    next.show();
    QCOMPARE(off(next, window), QPoint(0, 0));
}

void TestDialogPlace::withoutAWindowItIsLeftToTheSystem()
{
    Dialog dialog(nullptr);
    dialog.show();
    QVERIFY(dialog.isVisible());
}

TESSEL_TEST_MAIN(TestDialogPlace)
#include "tst_dialogplace.moc"
