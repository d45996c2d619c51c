#pragma once

#include <QList>
#include <QRegularExpression>
#include <QStringList>

/// The texts in the sources of the programs: what they can show.
class ProgramTexts
{
public:
    /// Reads all sources below these folders.
    explicit ProgramTexts(const QStringList& folders);

    /// Whether a program can show this: one of its texts as a whole, with whatever it fills in, or,
    /// of three words and more, a piece of one.
    bool contain(const QString& quoted) const;

    qsizetype count() const { return m_texts.size(); }

private:
    void readSource(const QByteArray& source);
    void add(const QString& text);

    QStringList m_texts;
    QList<QRegularExpression> m_filledIn; ///< of the texts with something to be filled in
};
