#include "displaywidth.h"

#include <algorithm>
#include <array>

namespace {

struct Range
{
    char32_t first;
    char32_t last;
};

/// The blocks whose letters take two columns.
constexpr std::array wideRanges = {
    Range{0x1100, 0x115f},   Range{0x2e80, 0x303e},   Range{0x3041, 0x33ff},
    Range{0x3400, 0x4dbf},   Range{0x4e00, 0x9fff},   Range{0xa000, 0xa4cf},
    Range{0xac00, 0xd7a3},   Range{0xf900, 0xfaff},   Range{0xfe30, 0xfe6f},
    Range{0xff00, 0xff60},   Range{0xffe0, 0xffe6},   Range{0x1f300, 0x1f64f},
    Range{0x1f900, 0x1f9ff}, Range{0x20000, 0x3fffd},
};

bool isWide(char32_t letter)
{
    return std::any_of(wideRanges.begin(), wideRanges.end(), [letter](const Range& range) {
        return letter >= range.first && letter <= range.last;
    });
}

int widthOf(char32_t letter)
{
    switch (QChar::category(letter)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        return isWide(letter) ? 2 : 1;
    }
}

/// Whether every letter takes one column and none acts on a terminal, as in most texts of a hall.
bool isPlain(const QString& text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar letter) { return letter >= u' ' && letter <= u'~'; });
}

bool actsOnTerminal(char32_t letter)
{
    switch (QChar::category(letter)) {
    case QChar::Other_Control:
    case QChar::Other_Format: // such as those that turn the direction of writing
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

/// How many letters from `begin` fit into `width` columns, with the marks on the last one; at
/// least one.
qsizetype fitting(const QList<uint>& letters, qsizetype begin, int width)
{
    qsizetype end = begin;
    int used = 0;
    while (end < letters.size()) {
        used += widthOf(letters.at(end));
        if (used > width && end > begin) {
            break;
        }
        ++end;
    }
    return end - begin;
}

} // namespace

int displayWidth(const QString& text)
{
    if (isPlain(text)) {
        return int(text.size());
    }
    int width = 0;
    for (const uint letter : text.toUcs4()) {
        width += widthOf(letter);
    }
    return width;
}

QString printable(const QString& text)
{
    if (isPlain(text)) {
        return text;
    }
    QString shown;
    for (const uint letter : text.toUcs4()) {
        shown += actsOnTerminal(letter)
                     ? QStringLiteral("?")
                     : QString::fromUcs4(reinterpret_cast<const char32_t*>(&letter), 1);
    }
    return shown;
}

QStringList wrapped(const QString& text, int width)
{
    if (displayWidth(text) <= width) {
        return {text};
    }
    const QList<uint> letters = text.toUcs4();
    QStringList lines;
    qsizetype begin = 0;
    do {
        qsizetype count = fitting(letters, begin, width);
        qsizetype next = begin + count;
        if (next < letters.size()) {
            // The last space that fits, or the one right behind, ends the line and is not shown.
            const qsizetype space = letters.lastIndexOf(' ', next);
            if (space > begin) {
                count = space - begin;
                next = space + 1;
            }
        }
        lines.append(QString::fromUcs4(
            reinterpret_cast<const char32_t*>(letters.constData()) + begin, count));
        begin = next;
    } while (begin < letters.size());
    return lines;
}
