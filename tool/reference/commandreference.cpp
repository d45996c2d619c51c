#include "commandreference.h"

#include "arguments.h"
#include "displaywidth.h"

#include <QRegularExpression>

namespace {

constexpr int maxLineWidth = 76;

QString completionLine(const Command& command)
{
    const CommandSyntax syntax = command.syntax();
    QStringList words{command.name()};
    for (const Operand& operand : syntax.operands) {
        words.append(operand.name);
    }
    for (const CommandOption& option : syntax.options) {
        const QString value =
            option.valueName.isEmpty() ? QString() : QStringLiteral("=") + option.valueName;
        for (const QString& name : option.names) {
            words.append(writtenOption(name) + value);
        }
    }
    return words.join(u' ') + QStringLiteral(" -h --help\n");
}

/// Text that the formatter takes as it is: a new line for each sentence, nothing read as a request.
QString proseLines(const QString& text)
{
    static const QRegularExpression betweenSentences(QStringLiteral("(?<=[.:;])\\s+(?=[A-Z])"));
    const QString escaped = QString(text).replace(u'\\', QStringLiteral("\\e"));
    QString lines;
    for (const QString& sentence : escaped.split(betweenSentences)) {
        for (const QString& line : wrapped(sentence, maxLineWidth)) {
            const bool isRequest = line.startsWith(u'.') || line.startsWith(u'\'');
            lines += (isRequest ? QStringLiteral("\\&") : QString()) + line + u'\n';
        }
    }
    return lines;
}

QString sentence(const QString& text)
{
    return text.left(1).toUpper() + text.mid(1) + u'.';
}

/// An option as the words of a macro.
QString markedOption(const CommandOption& option, const QString& name)
{
    const QString flag = QStringLiteral("Fl ") + (name.size() == 1 ? name : u'-' + name);
    return option.valueName.isEmpty() ? flag : flag + QStringLiteral(" Ar ") + option.valueName;
}

QString usageLines(const Command& command)
{
    const CommandSyntax syntax = command.syntax();
    QString lines = QStringLiteral(".Nm\n.Cm %1\n").arg(command.name());
    for (const Operand& operand : syntax.operands) {
        lines += QStringLiteral(".Ar %1\n").arg(operand.name);
    }
    for (const CommandOption& option : syntax.options) {
        const QString marked = markedOption(option, option.names.first());
        const QString more = option.isRepeatable ? QStringLiteral(" Ns ...") : QString();
        const QString macro = option.isRequired ? QStringLiteral(".") : QStringLiteral(".Op ");
        lines += macro + marked + more + u'\n';
    }
    return lines;
}

QString item(const QString& marked, const QString& description)
{
    return QStringLiteral(".It ") + marked + u'\n' + proseLines(sentence(description));
}

QString argumentList(const CommandSyntax& syntax)
{
    QString lines = QStringLiteral(".Bl -tag -width Ds\n");
    for (const Operand& operand : syntax.operands) {
        lines += item(QStringLiteral("Ar ") + operand.name, operand.description);
    }
    for (const CommandOption& option : syntax.options) {
        QStringList marked;
        for (const QString& name : option.names) {
            marked.append(markedOption(option, name));
        }
        lines += item(marked.join(QStringLiteral(" , ")), option.description);
    }
    return lines + QStringLiteral(".El\n");
}

QString manualOf(const Command& command)
{
    QString text = QStringLiteral(".Ss %1\n").arg(command.name()) + usageLines(command) +
                   QStringLiteral(".Pp\n") + proseLines(sentence(command.summary()));
    for (const QString& paragraph : command.details().split(u'\n', Qt::SkipEmptyParts)) {
        text += QStringLiteral(".Pp\n") + proseLines(paragraph);
    }
    return text + argumentList(command.syntax());
}

} // namespace

QString completionTable(const CommandTable& commands)
{
    QString lines;
    for (const auto& command : commands) {
        lines += completionLine(*command);
    }
    return lines;
}

QString manualSection(const CommandTable& commands)
{
    QString text;
    for (const auto& command : commands) {
        text += manualOf(*command);
    }
    return text;
}

QString filledIn(const QString& text, const CommandTable& commands)
{
    QString filled = text;
    filled.replace(QStringLiteral("<COMPLETION>\n"), completionTable(commands));
    return filled.replace(QStringLiteral("<COMMANDS>\n"), manualSection(commands));
}
