#include "arrowkey.h"

#include <Qt>

#include <limits>

QPoint arrowStep(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1, 0};
    case Qt::Key_Right:
        return {1, 0};
    case Qt::Key_Up:
        return {0, -1};
    case Qt::Key_Down:
        return {0, 1};
    default:
        return {};
    }
}

int neighbourPlace(const QMap<int, QPoint>& places, int from, QPoint step)
{
    int nearest = from;
    int shortest = std::numeric_limits<int>::max();
    for (auto place = places.begin(); place != places.end(); ++place) {
        const QPoint way = place.value() - places.value(from);
        const int ahead = QPoint::dotProduct(way, step);
        const int aside = way.manhattanLength() - ahead;
        if (ahead > 0 && ahead + 2 * aside < shortest) {
            nearest = place.key();
            shortest = ahead + 2 * aside;
        }
    }
    return nearest;
}
