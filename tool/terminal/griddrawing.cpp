#include "griddrawing.h"

namespace {

/// The cells, with a border of cells that belong to nothing around them.
class Cells
{
public:
    explicit Cells(const QStringList& rows)
        : m_rows(rows)
    {
    }

    qsizetype width() const { return m_rows.value(0).size(); }
    qsizetype height() const { return m_rows.size(); }

    QChar at(qsizetype column, qsizetype row) const
    {
        const bool isInside = column >= 0 && row >= 0 && column < width() && row < height();
        return isInside ? m_rows.at(row).at(column) : QChar();
    }

    /// Whether there is a line above a cell, or left of it.
    bool hasLineAbove(qsizetype column, qsizetype row) const
    {
        return at(column, row) != at(column, row - 1);
    }
    bool hasLineLeft(qsizetype column, qsizetype row) const
    {
        return at(column, row) != at(column - 1, row);
    }

    /// Whether lines meet at the upper left corner of a cell.
    bool hasCorner(qsizetype column, qsizetype row) const
    {
        const bool isAcross = hasLineAbove(column, row) || hasLineAbove(column - 1, row);
        const bool isDown = hasLineLeft(column, row) || hasLineLeft(column, row - 1);
        return isAcross && isDown;
    }

private:
    QStringList m_rows;
};

QString lineAbove(const Cells& cells, qsizetype row)
{
    QString line;
    for (qsizetype column = 0; column <= cells.width(); ++column) {
        const bool goesOn = cells.hasLineAbove(column, row);
        const bool goesDown = cells.hasLineLeft(column, row) || cells.hasLineLeft(column, row - 1);
        line += cells.hasCorner(column, row) ? QChar(u'+')
                : goesDown                   ? QChar(u'|')
                                             : QChar(goesOn ? u'-' : u' ');
        if (column < cells.width()) {
            line += QString(3, goesOn ? u'-' : u' ');
        }
    }
    return line + u'\n';
}

QString lineThrough(const Cells& cells, qsizetype row, QChar empty)
{
    QString line;
    for (qsizetype column = 0; column <= cells.width(); ++column) {
        line += cells.hasLineLeft(column, row) ? u'|' : u' ';
        if (column < cells.width()) {
            const QChar cell = cells.at(column, row);
            line += u' ' + QString(cell == empty ? QChar(u' ') : cell) + u' ';
        }
    }
    return line + u'\n';
}

} // namespace

QString drawnGrid(const QStringList& rows, QChar empty)
{
    const Cells cells(rows);
    QString text;
    for (qsizetype row = 0; row <= cells.height(); ++row) {
        text += lineAbove(cells, row);
        if (row < cells.height()) {
            text += lineThrough(cells, row, empty);
        }
    }
    return text;
}
