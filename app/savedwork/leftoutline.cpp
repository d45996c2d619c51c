#include "leftoutline.h"

#include <QXmlStreamReader>

#include <algorithm>

namespace {

bool saysSomething(const QXmlStreamReader& reader)
{
    return reader.isStartElement() || reader.isEndElement() ||
           (reader.isCharacters() && !reader.isWhitespace());
}

/// Moves to the next thing that says something, or to the end.
void moveOn(QXmlStreamReader& reader)
{
    reader.readNext();
    while (!reader.atEnd() && !saysSomething(reader)) {
        reader.readNext();
    }
}

/// Whether all that stands where one reader is stands where the other is.
bool isSaidAgain(const QXmlStreamReader& reader, const QXmlStreamReader& taken)
{
    const QXmlStreamAttributes attributes = reader.attributes();
    const QXmlStreamAttributes takenAttributes = taken.attributes();
    return reader.tokenType() == taken.tokenType() &&
           reader.qualifiedName() == taken.qualifiedName() &&
           std::all_of(attributes.begin(), attributes.end(),
                       [&](const auto& said) { return takenAttributes.contains(said); });
}

} // namespace

std::optional<qint64> firstLineLeftOut(const QString& text, const QString& taken)
{
    QXmlStreamReader reader(text);
    QXmlStreamReader takenReader(taken);
    // As the text was read: a prefix is a part of the name, whether it is declared or not.
    reader.setNamespaceProcessing(false);
    takenReader.setNamespaceProcessing(false);
    while (!reader.atEnd()) {
        moveOn(reader);
        moveOn(takenReader);
        if (!isSaidAgain(reader, takenReader)) {
            return reader.lineNumber();
        }
    }
    return std::nullopt;
}
