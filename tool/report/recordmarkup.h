#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/// Pieces of HTML. Texts are markup already unless they are said to be escaped here.
namespace RecordMarkup {

/// A column of a table; a width is in per cent of the table.
struct Column
{
    QString title;
    int width = 0;
};

/// A text as it is read, with nothing in it acting as markup. What acts on a text without being
/// seen, such as a turn of the direction of writing, is shown as a mark.
QString escaped(const QString& text);

/// The same for a name from a file, whose direction of writing touches nothing around it.
QString foreign(const QString& text);

/// An element around its content, in a line of its own.
QString element(const char* tag, const QString& content, const char* styleClass = nullptr);

/// The cell that a row is known by.
QString rowHead(const QString& content);

/// A table with a line of titles.
QString table(const QList<Column>& columns, const QString& rows);

/// A square picture that the page carries with it, `side` pixels of a screen wide. The text that
/// stands for it is escaped here.
QString picture(const QByteArray& png, int side, const QString& text);

} // namespace RecordMarkup
