#pragma once

#include <QString>
#include <QStringView>
#include <QXmlStreamWriter>

/// The text without the characters that XML cannot carry: control characters, lone surrogates,
/// U+FFFE and U+FFFF. This is what OrderedXml writes of it.
QString carriedByXml(QStringView text);

/// Writes XML whose attributes stand in the order in which they were given, so that the same data
/// is the same bytes on every run: one space of indent per level, no declaration, all data in
/// attributes, one element per line, a line feed at the end.
///
/// Characters that XML cannot carry are left out, so that whatever a user pasted into a field, the
/// text can be read again.
class OrderedXml
{
public:
    OrderedXml();

    /// Opens an element inside the current one.
    void start(const QString& element);
    /// Adds an attribute to the element opened last, before it gets children.
    void attribute(const QString& name, QStringView value);
    void attribute(const QString& name, int value);
    /// Closes the current element.
    void end();

    /// The text so far; complete once every element is closed.
    QString text() const;

private:
    QString m_text;
    QXmlStreamWriter m_writer;
};
