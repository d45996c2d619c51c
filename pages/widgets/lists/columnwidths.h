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
    /// others are as wide as they should be with the font that the list has now.
    ColumnWidths(QTreeView* list, QMap<int, int> widths);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void setWidths();
    void scaleOthers(double factor);

    QTreeView* m_list;
    QMap<int, int> m_widths; ///< by column
    double m_scale;          ///< of the font that the columns are for
};
