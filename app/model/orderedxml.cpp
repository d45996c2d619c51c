#include "orderedxml.h"

namespace {

bool isAllowed(char16_t unit)
{
    return unit >= 0x20 ? unit < 0xFFFE : unit == u'\t' || unit == u'\n' || unit == u'\r';
}

bool isCarried(QStringView text, qsizetype at)
{
    const QChar unit = text.at(at);
    if (unit.isHighSurrogate()) {
        return at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
    }
    if (unit.isLowSurrogate()) {
        return at > 0 && text.at(at - 1).isHighSurrogate();
    }
    return isAllowed(unit.unicode());
}

qsizetype firstNotCarried(QStringView text, qsizetype from)
{
    while (from < text.size() && isCarried(text, from)) {
        ++from;
    }
    return from;
}

} // namespace

QString carriedByXml(QStringView text)
{
    QString kept;
    qsizetype from = 0;
    for (qsizetype at = firstNotCarried(text, 0); at < text.size();
         at = firstNotCarried(text, from)) {
        kept.append(text.sliced(from, at - from));
        from = at + 1;
    }
    kept.append(text.sliced(from));
    return kept;
}

OrderedXml::OrderedXml()
    : m_writer(&m_text)
{
    m_writer.setAutoFormatting(true);
    m_writer.setAutoFormattingIndent(1);
}

void OrderedXml::start(const QString& element)
{
    m_writer.writeStartElement(element);
}

void OrderedXml::attribute(const QString& name, QStringView value)
{
    m_writer.writeAttribute(name, carriedByXml(value));
}

void OrderedXml::attribute(const QString& name, int value)
{
    m_writer.writeAttribute(name, QString::number(value));
}

void OrderedXml::end()
{
    m_writer.writeEndElement();
}

QString OrderedXml::text() const
{
    // The writer begins the first element on a new line when no declaration stands before it.
    return m_text.trimmed() + QLatin1Char('\n');
}
