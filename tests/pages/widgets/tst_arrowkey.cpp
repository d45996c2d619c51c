#include "arrowkey.h"
#include "testcase.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>

class TestArrowKey : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void onlyArrowsHaveAStep();
    void whatLiesStraightAheadWins();
    void nothingAheadStaysWhereItIs();
    void fourPlacesAreAllWithinReachOfEachOther();
};

namespace {

using Places = QMap<int, QPoint>;

/// Every place that arrows lead to from `from`, itself included.
QSet<int> reachable(const Places& places, int from)
{
    QSet<int> reached;
    QList<int> open{from};
    while (!open.isEmpty()) {
        const int place = open.takeLast();
        reached.insert(place);
        for (const int key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down}) {
            const int next = neighbourPlace(places, place, arrowStep(key));
            if (!reached.contains(next)) {
                open.append(next);
            }
        }
    }
    return reached;
}

} // namespace

void TestArrowKey::onlyArrowsHaveAStep()
{
    QCOMPARE(arrowStep(Qt::Key_Left), QPoint(-1, 0));
    QCOMPARE(arrowStep(Qt::Key_Right), QPoint(1, 0));
    QCOMPARE(arrowStep(Qt::Key_Up), QPoint(0, -1));
    QCOMPARE(arrowStep(Qt::Key_Down), QPoint(0, 1));
    QCOMPARE(arrowStep(Qt::Key_Space), QPoint());
}

void TestArrowKey::whatLiesStraightAheadWins()
{
    const Places places{{1, {0, 0}}, {2, {50, 40}}, {3, {100, 0}}, {4, {0, 90}}};
    QCOMPARE(neighbourPlace(places, 1, {1, 0}), 3);
    QCOMPARE(neighbourPlace(places, 1, {0, 1}), 4);
    QCOMPARE(neighbourPlace(places, 3, {-1, 0}), 1);
}

void TestArrowKey::nothingAheadStaysWhereItIs()
{
    const Places places{{1, {0, 0}}, {2, {50, 0}}};
    QCOMPARE(neighbourPlace(places, 1, {-1, 0}), 1);
    QCOMPARE(neighbourPlace(places, 1, {0, 1}), 1);
    QCOMPARE(neighbourPlace({}, 0, {1, 0}), 0);
}

void TestArrowKey::fourPlacesAreAllWithinReachOfEachOther()
{
    QRandomGenerator random(4);
    for (int drawing = 0; drawing < 5000; ++drawing) {
        Places places;
        QSet<int> taken;
        while (places.size() < 4) {
            const int spot = int(random.bounded(256));
            if (!taken.contains(spot)) {
                taken.insert(spot);
                places.insert(int(places.size()) + 1, {25 * (spot / 16), 25 * (spot % 16)});
            }
        }
        for (int from = 1; from <= 4; ++from) {
            QCOMPARE(reachable(places, from).size(), 4);
        }
    }
}

TESSEL_TEST_MAIN(TestArrowKey)
#include "tst_arrowkey.moc"
