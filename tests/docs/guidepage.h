#pragma once

#include <QList>
#include <QSize>
#include <QStringList>

class QXmlStreamAttributes;
class QXmlStreamReader;

/// A picture as a page shows it.
struct ShownPicture
{
    QString file;
    QString description; ///< for those who do not see it
    QSize size;          ///< that the page keeps free for it
};

/// A page of the guide, as a reader with a browser goes through it.
class GuidePage
{
public:
    /// Reads the file. What is no well-formed page is told by fault().
    explicit GuidePage(const QString& path);

    QString name;
    QString fault;
    QString text; ///< all that stands there
    QStringList elements;
    QStringList attributes; ///< "name=value"
    QStringList places;     ///< that links can lead to
    QStringList links;
    QStringList screenTexts; ///< quoted from the program
    QList<ShownPicture> pictures;

private:
    void read(QXmlStreamReader& reader);
    void take(const QString& element, const QXmlStreamAttributes& attributes);
    void addText(const QString& characters);

    qsizetype m_quoteDepth = 0; ///< elements that are open in a quotation, with its own
};
