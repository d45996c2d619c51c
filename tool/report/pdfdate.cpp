#include "pdfdate.h"

namespace {

constexpr qsizetype placeDigits = 10; // of a place in the table
constexpr qsizetype entryLength = 20; // of a line of the table

/// Where a text between two others stands.
struct Passage
{
    qsizetype begin = -1;
    qsizetype end = -1;

    bool isFound() const { return begin >= 0 && end >= begin; }
};

Passage passageBetween(const QByteArray& text, qsizetype before, const QByteArray& opening,
                       const QByteArray& closing)
{
    const qsizetype begin = before < 0 ? -1 : before + opening.size();
    return {begin, begin < 0 ? -1 : text.indexOf(closing, begin)};
}

QByteArray numberedPlace(qsizetype place)
{
    return QByteArray::number(place).rightJustified(placeDigits, '0');
}

/// Moves the places behind `from` in the table that begins at `table`; false where it is none.
bool movePlaces(QByteArray& pdf, qsizetype table, qsizetype from, qsizetype by)
{
    if (!pdf.mid(table).startsWith("xref\n0 ")) {
        return false;
    }
    qsizetype entry = pdf.indexOf('\n', table + 5) + 1;
    for (; pdf.mid(entry + entryLength - 3, 3) == "n \n" || pdf.mid(entry, 1) == "0";
         entry += entryLength) {
        const qsizetype place = pdf.mid(entry, placeDigits).toLongLong();
        if (place > from) {
            pdf.replace(entry, placeDigits, numberedPlace(place + by));
        }
    }
    return pdf.mid(entry).startsWith("trailer");
}

} // namespace

QByteArray withCreationDate(const QByteArray& pdf, QDate day)
{
    const QByteArray opening = "/CreationDate (";
    const QByteArray ending = "startxref\n";
    const Passage date = passageBetween(pdf, pdf.indexOf(opening), opening, ")");
    const Passage table = passageBetween(pdf, pdf.lastIndexOf(ending), ending, "\n");
    if (!date.isFound() || !table.isFound()) {
        return pdf;
    }
    const QByteArray written = day.toString(QStringLiteral("'D:'yyyyMMdd'000000Z'")).toLatin1();
    const qsizetype longer = written.size() - (date.end - date.begin);
    const qsizetype place =
        pdf.mid(table.begin, table.end - table.begin).trimmed().toLongLong() + longer;
    QByteArray dated = pdf;
    dated.replace(table.begin, table.end - table.begin, QByteArray::number(place) + ' ');
    dated.replace(date.begin, date.end - date.begin, written);
    return movePlaces(dated, place, date.begin, longer) ? dated : pdf;
}
