#include "terminal.h"

#include "displaywidth.h"
#include "texttable.h"

#include <QFileDevice>
#include <QJsonDocument>

namespace {

bool isFlushed(QIODevice* device)
{
    auto* file = qobject_cast<QFileDevice*>(device);
    return file == nullptr || file->flush();
}

} // namespace

Terminal::Terminal(QIODevice* data, QIODevice* talk, bool isWatched)
    : m_data(data)
    , m_talk(talk)
    , m_isWatched(isWatched)
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
    const QString name = QStringLiteral("tesselctl: ");
    const QString shown = printable(line);
    const int room = TextTable::usualWidth - int(name.size());
    for (const QString& part : m_isWatched ? wrapped(shown, room) : QStringList(shown)) {
        m_talk->write((name + part + u'\n').toUtf8());
    }
    isFlushed(m_talk);
}

bool Terminal::flush()
{
    m_isWritten = isFlushed(m_data) && m_isWritten;
    return m_isWritten;
}

void Terminal::put(const QByteArray& bytes)
{
    m_isWritten = m_data->write(bytes) == bytes.size() && m_isWritten;
}
