#include "jsontext.h"

#include <QJsonDocument>

namespace {

/// Whether this is the text of something else: the parser takes nothing but objects and lists, and
/// calls a number by itself an illegal one.
bool isOtherThanObject(QByteArray text)
{
    if (text.startsWith("\xef\xbb\xbf")) {
        text.remove(0, 3);
    }
    return !text.trimmed().startsWith('{');
}

/// Where a text stops being JSON, counted as editors do.
QString syntaxFault(const QByteArray& text, const QJsonParseError& error)
{
    const QByteArray before = text.left(error.offset);
    const qsizetype line = before.count('\n') + 1;
    const qsizetype column = before.size() - (before.lastIndexOf('\n') + 1) + 1;
    return QStringLiteral("line %1, column %2: %3")
        .arg(QString::number(line), QString::number(column), error.errorString());
}

} // namespace

QJsonObject readJsonText(const QByteArray& text, QString& fault)
{
    if (isOtherThanObject(text)) {
        fault = QStringLiteral("line 1, column 1: this is no object");
        return {};
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error != QJsonParseError::NoError) {
        fault = syntaxFault(text, error);
    }
    return document.object();
}
