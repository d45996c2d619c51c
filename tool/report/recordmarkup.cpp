#include "recordmarkup.h"

namespace {

/// Whether a letter turns the direction of writing until another one turns it back.
bool turnsWriting(QChar letter)
{
    return (letter >= QChar(0x202a) && letter <= QChar(0x202e)) ||
           (letter >= QChar(0x2066) && letter <= QChar(0x2069));
}

bool isHidden(QChar letter)
{
    return letter.category() == QChar::Other_Control ||
           letter.category() == QChar::Separator_Line ||
           letter.category() == QChar::Separator_Paragraph || turnsWriting(letter) ||
           letter == QChar::ObjectReplacementCharacter;
}

} // namespace

QString RecordMarkup::escaped(const QString& text)
{
    // A half of a letter is no text, and is replaced when it is written.
    QString shown = QString::fromUtf8(text.toUtf8());
    for (QChar& letter : shown) {
        letter = isHidden(letter) ? QChar(u'?') : letter;
    }
    return shown.toHtmlEscaped();
}

QString RecordMarkup::foreign(const QString& text)
{
    return QStringLiteral("<bdi>") + escaped(text) + QStringLiteral("</bdi>");
}

QString RecordMarkup::element(const char* tag, const QString& content, const char* styleClass)
{
    const QString name = QString::fromLatin1(tag);
    const QString attribute =
        styleClass != nullptr ? QStringLiteral(" class=\"%1\"").arg(QString::fromLatin1(styleClass))
                              : QString();
    return u'<' + name + attribute + u'>' + content + QStringLiteral("</") + name +
           QStringLiteral(">\n");
}

QString RecordMarkup::rowHead(const QString& content)
{
    return QStringLiteral("<th scope=\"row\" class=\"name\">") + content +
           QStringLiteral("</th>\n");
}

QString RecordMarkup::table(const QList<Column>& columns, const QString& rows)
{
    QString heads;
    for (const Column& column : columns) {
        heads += QStringLiteral("<th scope=\"col\" width=\"%1%\">").arg(column.width) +
                 column.title + QStringLiteral("</th>\n");
    }
    return QStringLiteral("<table>\n") + element("thead", element("tr", heads)) +
           element("tbody", rows) + QStringLiteral("</table>\n");
}

QString RecordMarkup::picture(const QByteArray& png, int side, const QString& text)
{
    return QStringLiteral("<img width=\"%1\" height=\"%1\" alt=\"").arg(side) + escaped(text) +
           QStringLiteral("\" src=\"data:image/png;base64,") + QString::fromLatin1(png.toBase64()) +
           QStringLiteral("\">");
}
