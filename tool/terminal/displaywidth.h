#pragma once

#include <QString>
#include <QStringList>

/// How many columns of a terminal a text takes: letters of East Asian scripts and emoji take two,
/// marks that stand on other letters none.
int displayWidth(const QString& text);

/// The text in one line, with a mark in place of each character that a terminal would act upon:
/// what comes from a file or a device moves no cursor and changes no colour.
QString printable(const QString& text);

/// The text in lines of at most `width` columns, parted at spaces, a longer word anywhere. At least
/// one line, which may be empty. A letter of two columns stands alone in a line of one.
QStringList wrapped(const QString& text, int width);
