#include "guidepage.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>

GuidePage::GuidePage(const QString& path)
    : name(QFileInfo(path).fileName())
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        fault = file.errorString();
        return;
    }
    QXmlStreamReader reader(&file);
    read(reader);
    fault = reader.hasError() ? reader.errorString() : QString();
    for (QString& quoted : screenTexts) {
        quoted = quoted.simplified();
    }
}

void GuidePage::read(QXmlStreamReader& reader)
{
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            take(reader.name().toString(), reader.attributes());
        } else if (reader.isCharacters()) {
            addText(reader.text().toString());
        } else if (reader.isEndElement() && m_quoteDepth > 0) {
            --m_quoteDepth;
        }
    }
}

void GuidePage::take(const QString& element, const QXmlStreamAttributes& given)
{
    elements.append(element);
    for (const QXmlStreamAttribute& attribute : given) {
        attributes.append(QStringLiteral("%1=%2").arg(attribute.name(), attribute.value()));
    }
    const auto value = [&given](const char* key) {
        return given.value(QLatin1String(key)).toString();
    };
    if (given.hasAttribute(QStringLiteral("id"))) {
        places.append(value("id"));
    }
    if (given.hasAttribute(QStringLiteral("href"))) {
        links.append(value("href"));
    }
    if (element == u"img") {
        pictures.append(
            {value("src"), value("alt"), QSize(value("width").toInt(), value("height").toInt())});
    }
    if (m_quoteDepth > 0) {
        ++m_quoteDepth;
    } else if (element == u"q" && value("class") == u"screen") {
        m_quoteDepth = 1;
        screenTexts.append(QString());
    }
}

void GuidePage::addText(const QString& characters)
{
    text += characters;
    if (m_quoteDepth > 0) {
        screenTexts.last() += characters;
    }
}
