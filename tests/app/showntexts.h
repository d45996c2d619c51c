#pragma once

#include <QColor>
#include <QList>
#include <QRect>
#include <QString>

class QImage;
class QTreeWidget;
class QWidget;

/// A text or an icon that a window shows.
struct ShownText
{
    QString name;
    QRect place;   ///< in the window, without frames
    double needed; ///< how much it has to stand out from its ground
};

/// Every enabled text, and every icon, that can be seen in `window`. What stands on a ground or in
/// a colour that is the same on every desktop needs what that pair of colours has, and what is
/// selected what the desktop gave to it.
QList<ShownText> shownTexts(const QWidget& window);

/// The cells of a table that hold a text, and the titles of its columns.
QList<ShownText> tableTexts(const QTreeWidget& table, const QWidget& window);

/// The two colours of a place: that of most of its pixels, and the one that stands out the most.
struct ShownColors
{
    QColor ground;
    QColor text;
};

/// What a picture shows in a place. Texts must be drawn without smoothing.
ShownColors shownColors(const QImage& picture, const QRect& place);

/// How much of its ground stands out what is drawn in a place.
double shownContrast(const QImage& picture, const QRect& place);
