#include "boundedxml.h"

namespace {

constexpr int maxAttributes = 256;

/// The number of attributes in a start tag, given without its "<". Outside of values only those
/// quotes stand in it that begin one.
int countAttributes(QStringView tag)
{
    int attributes = 0;
    QChar quote; // null outside of values
    for (const QChar unit : tag) {
        if (unit == quote) {
            quote = QChar();
        } else if (quote.isNull() && (unit == u'"' || unit == u'\'')) {
            quote = unit;
            ++attributes;
        } else if (quote.isNull() && unit == u'>') {
            break;
        }
    }
    return attributes;
}

/// No more attributes in any element than the limit. The reader compares each attribute with all
/// before it, so a single element of a few megabytes would keep it busy for minutes. "<" stands in
/// no attribute value, so each one begins something new.
bool hasFewAttributes(QStringView text)
{
    for (const QStringView piece : text.tokenize(u'<')) {
        const bool isTag = !piece.startsWith(u'!') && !piece.startsWith(u'?');
        if (isTag && countAttributes(piece) > maxAttributes) {
            return false;
        }
    }
    return true;
}

} // namespace

BoundedXml::BoundedXml(const QString& text)
    : m_reader(text)
{
    m_reader.setNamespaceProcessing(false);
    if (text.contains(u"<!DOCTYPE") || !hasFewAttributes(text)) {
        m_reader.raiseError();
    }
}

bool BoundedXml::enterChild()
{
    while (!m_reader.atEnd() && !m_reader.hasError()) {
        m_reader.readNext();
        if (m_reader.isEndElement()) {
            --m_depth;
            return false;
        }
        if (m_reader.isStartElement()) {
            ++m_depth;
            if (m_depth > maxDepth) {
                m_reader.raiseError();
            }
            return !m_reader.hasError();
        }
    }
    return false;
}

void BoundedXml::leave()
{
    while (enterChild()) {
        leave(); // as deep as elements may be nested
    }
}

QStringView BoundedXml::tag() const
{
    return m_reader.qualifiedName();
}

QXmlStreamAttributes BoundedXml::attributes() const
{
    return m_reader.attributes();
}

bool BoundedXml::finish()
{
    while (m_depth > 0 && !m_reader.hasError()) {
        leave();
    }
    leave(); // a second root is an error, white space and comments are not
    return !m_reader.hasError();
}
