#include "programtexts.h"

#include <QDirIterator>
#include <QFile>

#include <algorithm>

namespace {

// What is between two pieces of one text.
bool isBlank(QStringView text)
{
    return text.trimmed().isEmpty();
}

QString unescaped(QString literal)
{
    literal.replace(QStringLiteral("\\n"), QStringLiteral("\n"));
    literal.replace(QStringLiteral("\\\""), QStringLiteral("\""));
    return literal.replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
}

// Letters around what is filled in; a text without many says nothing about what it shows.
constexpr int minLetterCount = 10;

int letterCount(const QString& text)
{
    return int(std::count_if(text.cbegin(), text.cend(), [](QChar c) { return c.isLetter(); }));
}

} // namespace

ProgramTexts::ProgramTexts(const QStringList& folders)
{
    for (const QString& folder : folders) {
        QDirIterator walk(folder, {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                          QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            QFile source(walk.next());
            if (source.open(QIODevice::ReadOnly)) {
                readSource(source.readAll());
            }
        }
    }
    m_texts.removeDuplicates();
}

bool ProgramTexts::contain(const QString& quoted) const
{
    const bool mayBeAPiece = quoted.count(u' ') >= 2;
    for (const QString& text : m_texts) {
        if (text == quoted || (mayBeAPiece && text.contains(quoted))) {
            return true;
        }
    }
    for (const QRegularExpression& text : m_filledIn) {
        if (text.match(quoted).hasMatch()) {
            return true;
        }
    }
    return false;
}

/// Pieces that follow each other with nothing but blanks between them are one text.
void ProgramTexts::readSource(const QByteArray& source)
{
    static const QRegularExpression token(
        QStringLiteral(R"re('(?:[^'\\]|\\.)'|//[^\n]*|"((?:[^"\\\n]|\\.)*)")re"));
    const QString code = QString::fromUtf8(source);
    QString text;
    qsizetype end = -1;
    QRegularExpressionMatchIterator tokens = token.globalMatch(code);
    while (tokens.hasNext()) {
        const QRegularExpressionMatch match = tokens.next();
        if (match.lastCapturedIndex() < 1) {
            continue;
        }
        if (end >= 0 && !isBlank(QStringView(code).mid(end, match.capturedStart() - end))) {
            add(text);
            text.clear();
        }
        text += unescaped(match.captured(1));
        end = match.capturedEnd();
    }
    add(text);
}

void ProgramTexts::add(const QString& text)
{
    const QString shown = text.simplified();
    m_texts.append(shown);
    static const QRegularExpression place(QStringLiteral("%[1-9]"));
    if (!shown.contains(place) || letterCount(shown) < minLetterCount) {
        return;
    }
    // No text has this character, and none that is escaped contains it.
    const QString mark(QChar(0x1));
    QString pattern = QRegularExpression::escape(QString(shown).replace(place, mark));
    pattern.replace(QRegularExpression::escape(mark), QStringLiteral(".+"));
    m_filledIn.append(QRegularExpression(QRegularExpression::anchoredPattern(pattern)));
}
