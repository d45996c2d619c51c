#pragma once

#include <QString>
#include <QStringList>

/// An installer who has a keyboard and no mouse: keys go to whatever has the focus in the window in
/// front, are counted, and must never find the focus lost.
class KeyboardUser
{
public:
    /// One stroke, whatever is held with it.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// The same several times over.
    void press(int times, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// A stroke per letter.
    void type(const QString& text);

    int strokes() const { return m_strokes; }
    /// The strokes before or after which nothing that can be seen and used had the focus; empty is
    /// good.
    QStringList focusLostAt() const { return m_focusLostAt; }

private:
    void look(const char* when);

    int m_strokes = 0;
    QStringList m_focusLostAt;
};
