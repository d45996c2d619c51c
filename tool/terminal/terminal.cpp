#include "terminal.h"

#include "displaywidth.h"

#include <QFileDevice>
#include <QJsonDocument>

#include <algorithm>

namespace {

const QString name = QStringLiteral("tesselctl: ");

bool isFlushed(QIODevice* device)
{
    auto* file = qobject_cast<QFileDevice*>(device);
    return file == nullptr || file->flush();
}

} // namespace

Terminal::Terminal(QIODevice* data, QIODevice* talk, bool isWatched, int width)
    : m_data(data)
    , m_talk(talk)
    , m_isWatched(isWatched)
    , m_width(width)
{
}

void Terminal::write(const QString& text)
{
    put(text.toUtf8());
}

void Terminal::write(const QJsonObject& object)
{
    put(QJsonDocument(object).toJson());
}

void Terminal::say(const QString& line)
{
    // Whoever reads both in one window sees them in the order in which they were written.
    flush();
    const QString shown = printable(line);
    const int room = TextTable::usualWidth - int(name.size());
    QString lines;
    for (const QString& part : m_isWatched ? wrapped(shown, room) : QStringList(shown)) {
        lines += name + part + u'\n';
    }
    talk(erasure() + lines + m_bottom.join(u'\n'));
}

void Terminal::say(const QStringList& lines)
{
    for (const QString& line : lines) {
        say(line);
    }
}

void Terminal::draw(const QStringList& lines)
{
    if (m_isWatched) {
        const QString before = erasure();
        m_bottom.clear();
        for (const QString& line : lines) {
            m_bottom.append(printable(line));
        }
        talk(before + m_bottom.join(u'\n'));
    }
}

void Terminal::ask(const QString& question)
{
    if (m_isWatched) {
        draw({name + question});
    } else {
        say(question);
    }
}

void Terminal::letGo()
{
    if (!m_bottom.isEmpty()) {
        m_bottom.clear();
        talk(QStringLiteral("\n"));
    }
}

bool Terminal::flush()
{
    m_isWritten = isFlushed(m_data) && m_isWritten;
    return m_isWritten;
}

void Terminal::talk(const QString& text)
{
    m_talk->write(text.toUtf8());
    isFlushed(m_talk);
}

/// In rows of the terminal, of which a long line takes several and an empty one takes one.
int Terminal::bottomHeight() const
{
    int height = 0;
    for (const QString& line : m_bottom) {
        height += (std::max(displayWidth(line), 1) - 1) / m_width + 1;
    }
    return height;
}

/// What makes a terminal forget the lines at the bottom: up to the first of them, and away with all
/// that stands behind.
QString Terminal::erasure() const
{
    if (m_bottom.isEmpty()) {
        return {};
    }
    const int above = bottomHeight() - 1;
    const QString up = above > 0 ? QStringLiteral("\x1b[%1A").arg(above) : QString();
    return u'\r' + up + QStringLiteral("\x1b[J");
}

void Terminal::put(const QByteArray& bytes)
{
    m_isWritten = m_data->write(bytes) == bytes.size() && m_isWritten;
}
