#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// A table of texts for people: a line of headings, a line under them, the rows, and two spaces
/// between two columns. Cells that are too wide for the table are wrapped within their column, the
/// widest columns first, so that nothing is lost.
class TextTable
{
public:
    static constexpr int usualWidth = 80;

    explicit TextTable(const QStringList& headings);

    /// Without a heading and without the line under it.
    explicit TextTable(int columnCount);

    /// Numbers are easier to compare when they end in one column.
    void alignRight(int column);

    /// Adds a row; cells that are missing at its end are empty, those beyond the last column are
    /// dropped. Characters that a terminal would act upon are shown as marks.
    void addRow(const QStringList& cells);

    bool isEmpty() const { return m_rows.isEmpty(); }

    /// The lines, each with a line feed and none wider than `width` as long as that is enough for
    /// one letter per column; no blanks at their ends.
    QString text(int width = usualWidth) const;

private:
    QList<int> columnWidths(int width) const;
    QString rowText(const QStringList& cells, const QList<int>& widths) const;

    QStringList m_headings;
    QList<bool> m_isRight;
    QList<QStringList> m_rows;
};
