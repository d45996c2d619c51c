#pragma once

#include "texttable.h"

#include <QJsonObject>
#include <QString>
#include <QStringList>

class QIODevice;

/// The two streams of a command: data goes to the one, so that it can be led into a file or another
/// program, and what is said to the person to the other. Both are UTF-8.
class Terminal
{
public:
    /// Neither device is owned, and both are open. `isWatched` says that a person sees the talk
    /// while it is written, so that progress may be drawn and drawn over. It breaks lines that are
    /// longer than `width` columns, which is more than 0 and 80 where nobody tells.
    Terminal(QIODevice* data, QIODevice* talk, bool isWatched = false,
             int width = TextTable::usualWidth);

    bool isWatched() const { return m_isWatched; }

    /// Writes data as it is.
    void write(const QString& text);

    /// Writes data for programs: one object, its keys in alphabetical order on every run.
    void write(const QJsonObject& object);

    /// Says something to the person, in a line of its own and under the program's name; one that is
    /// watched and wider than a table is wrapped. Characters that a terminal would act upon are
    /// shown as marks.
    void say(const QString& line);

    /// The same with several lines.
    void say(const QStringList& lines);

    /// Shows lines that stay at the bottom, below what is said meanwhile, until they are replaced
    /// or let go; the first word is not the program's name. Does nothing when nobody watches.
    void draw(const QStringList& lines);

    /// Asks something that is answered in the same line. What is said meanwhile stands above it.
    void ask(const QString& question);

    /// Leaves what was drawn or asked where it stands, and goes on below it.
    void letGo();

    /// True when all data has been taken up to here.
    bool flush();

private:
    void put(const QByteArray& bytes);
    void talk(const QString& text);
    int bottomHeight() const;
    QString erasure() const;

    QIODevice* m_data;
    QIODevice* m_talk;
    bool m_isWatched;
    int m_width;
    QStringList m_bottom; ///< drawn or asked; the last line has no line feed yet
    bool m_isWritten = true;
};
