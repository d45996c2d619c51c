#pragma once

#include <QMap>
#include <QObject>

class QTreeView;

/// Keeps the columns of a list in proportion to its font.
class ColumnWidths : public QObject
{
    Q_OBJECT

public:
    /// Belongs to `list`. `widths` are those of some columns, in pixels, for the usual font; the
    /// others are as wide as they should be with the font that the list has now. What the user
    /// changes later stays changed.
    ColumnWidths(QTreeView* list, const QMap<int, int>& widths);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void scale(double factor);

    QTreeView* m_list;
    double m_scale; ///< of the font that the columns are for
};
