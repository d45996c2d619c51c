#include "emptylisttext.h"
#include "readablecolors.h"
#include "testcase.h"

#include <QAccessible>
#include <QTest>
#include <QTreeWidget>

class TestEmptyListText : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyListShowsItsTextInTheMiddle();
    void aLongTextIsWrapped();
    void rowsTakeThePlaceOfTheText();
    void theTextIsThereAgainWhenTheRowsAreGone_data();
    void theTextIsThereAgainWhenTheRowsAreGone();
    void theTextCanBeReplaced();
    void screenReadersFindItAsTheDescription();
};

namespace {

const QString text = QStringLiteral("Nothing was found.");

struct List
{
    List()
    {
        widget.setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Address")});
        widget.resize(400, 300);
        widget.show();
    }

    /// What is painted below the header: the smallest rectangle around it.
    QRect painted()
    {
        const QImage picture = widget.viewport()->grab().toImage();
        const QColor ground = widget.palette().color(QPalette::Base);
        QRect all;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                if (picture.pixelColor(x, y) != ground) {
                    all |= QRect(x, y, 1, 1);
                }
            }
        }
        return all;
    }

    QTreeWidget widget;
};

} // namespace

void TestEmptyListText::anEmptyListShowsItsTextInTheMiddle()
{
    List list;
    QVERIFY(list.painted().isEmpty());
    new EmptyListText(&list.widget, text);
    const QRect painted = list.painted();
    QVERIFY(painted.width() > list.widget.fontMetrics().horizontalAdvance(text) / 2);
    const QPoint off = painted.center() - list.widget.viewport()->rect().center();
    QVERIFY(qAbs(off.x()) < 10 && qAbs(off.y()) < 10);
}

void TestEmptyListText::aLongTextIsWrapped()
{
    List list;
    auto* shown = new EmptyListText(&list.widget, text);
    const int line = list.painted().height();
    shown->setText((text + u' ').repeated(8));
    QVERIFY(list.painted().height() > 2 * line);
    QVERIFY(list.painted().left() > 0);
    QVERIFY(list.painted().right() < list.widget.viewport()->width() - 1);
}

void TestEmptyListText::rowsTakeThePlaceOfTheText()
{
    List list;
    new EmptyListText(&list.widget, text);
    new QTreeWidgetItem(&list.widget, QStringList());
    list.widget.clearFocus();
    QVERIFY(list.painted().isEmpty());
}

void TestEmptyListText::theTextIsThereAgainWhenTheRowsAreGone_data()
{
    QTest::addColumn<bool>("atOnce");
    QTest::newRow("cleared") << true;
    QTest::newRow("one by one") << false;
}

void TestEmptyListText::theTextIsThereAgainWhenTheRowsAreGone()
{
    QFETCH(const bool, atOnce);
    List list;
    new EmptyListText(&list.widget, text);
    const QRect before = list.painted();
    auto* row = new QTreeWidgetItem(&list.widget, {text});
    QVERIFY(list.painted() != before);
    if (atOnce) {
        list.widget.clear();
    } else {
        delete row;
    }
    QCOMPARE(list.painted(), before);
    QCOMPARE(list.widget.accessibleDescription(), text);
}

void TestEmptyListText::theTextCanBeReplaced()
{
    List list;
    auto* shown = new EmptyListText(&list.widget, text);
    const QRect before = list.painted();
    shown->setText(QStringLiteral("Nothing."));
    QVERIFY(list.painted().width() < before.width());
    QCOMPARE(list.widget.accessibleDescription(), QStringLiteral("Nothing."));
}

void TestEmptyListText::screenReadersFindItAsTheDescription()
{
    List list;
    new EmptyListText(&list.widget, text);
    const auto* seen = QAccessible::queryAccessibleInterface(&list.widget);
    QCOMPARE(seen->text(QAccessible::Description), text);
    new QTreeWidgetItem(&list.widget, {text});
    QCOMPARE(seen->text(QAccessible::Description), QString());
}

TESSEL_TEST_MAIN(TestEmptyListText)
#include "tst_emptylisttext.moc"
