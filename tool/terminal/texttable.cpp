#include "texttable.h"

#include "displaywidth.h"

#include <algorithm>
#include <numeric>

namespace {

constexpr int gap = 2;

QString padded(const QString& text, int width, bool isRight)
{
    const QString blanks(std::max(0, width - displayWidth(text)), u' ');
    return isRight ? blanks + text : text + blanks;
}

QString withoutBlanksAtEnd(QString line)
{
    while (line.endsWith(u' ')) {
        line.chop(1);
    }
    return line;
}

} // namespace

TextTable::TextTable(const QStringList& headings)
    : m_headings(headings)
    , m_isRight(headings.size(), false)
{
}

TextTable::TextTable(int columnCount)
    : m_isRight(columnCount, false)
{
}

void TextTable::alignRight(int column)
{
    m_isRight[column] = true;
}

void TextTable::addRow(const QStringList& cells)
{
    QStringList row;
    for (qsizetype column = 0; column < m_isRight.size(); ++column) {
        row.append(printable(cells.value(column)));
    }
    m_rows.append(row);
}

QString TextTable::text(int width) const
{
    const QList<int> widths = columnWidths(width);
    QString text;
    if (!m_headings.isEmpty()) {
        QStringList rules;
        for (const int columnWidth : widths) {
            rules.append(QString(columnWidth, u'-'));
        }
        text += rowText(m_headings, widths) + rowText(rules, widths);
    }
    for (const QStringList& row : m_rows) {
        text += rowText(row, widths);
    }
    return text;
}

QList<int> TextTable::columnWidths(int width) const
{
    QList<int> widths(m_isRight.size(), 1);
    const auto widen = [&widths](const QStringList& cells) {
        for (qsizetype column = 0; column < cells.size(); ++column) {
            widths[column] = std::max(widths.at(column), displayWidth(cells.at(column)));
        }
    };
    widen(m_headings);
    std::for_each(m_rows.begin(), m_rows.end(), widen);
    const int available = width - gap * int(widths.size() - 1);
    int excess = std::accumulate(widths.begin(), widths.end(), 0) - available;
    for (; excess > 0; --excess) {
        const auto widest = std::max_element(widths.begin(), widths.end());
        if (*widest == 1) {
            break;
        }
        --*widest;
    }
    return widths;
}

QString TextTable::rowText(const QStringList& cells, const QList<int>& widths) const
{
    QList<QStringList> columns;
    qsizetype height = 1;
    for (qsizetype column = 0; column < widths.size(); ++column) {
        columns.append(wrapped(cells.at(column), widths.at(column)));
        height = std::max(height, columns.last().size());
    }
    QString text;
    for (qsizetype line = 0; line < height; ++line) {
        QStringList parts;
        for (qsizetype column = 0; column < widths.size(); ++column) {
            parts.append(
                padded(columns.at(column).value(line), widths.at(column), m_isRight.at(column)));
        }
        text += withoutBlanksAtEnd(parts.join(QString(gap, u' '))) + u'\n';
    }
    return text;
}
