#include "commandhelp.h"

#include "arguments.h"
#include "displaywidth.h"
#include "texttable.h"

namespace {

QString named(const CommandOption& option, const QString& name)
{
    const QString written = writtenOption(name);
    return option.valueName.isEmpty() ? written : written + u' ' + option.valueName;
}

/// All names of an option, the value behind the last.
QString allNames(const CommandOption& option)
{
    QStringList names;
    for (const QString& name : option.names) {
        names.append(writtenOption(name));
    }
    names.last() = named(option, option.names.last());
    return names.join(QStringLiteral(", "));
}

QString paragraphs(const QString& text)
{
    QString lines;
    for (const QString& paragraph : text.split(u'\n', Qt::SkipEmptyParts)) {
        lines += u'\n' + wrapped(paragraph, TextTable::usualWidth).join(u'\n') + u'\n';
    }
    return lines;
}

QString indented(const QString& first)
{
    return QStringLiteral("  ") + first;
}

} // namespace

QString usageOf(const Command& command)
{
    const CommandSyntax syntax = command.syntax();
    QStringList words{QStringLiteral("tesselctl"), command.name()};
    for (const Operand& operand : syntax.operands) {
        words.append(operand.name);
    }
    for (const CommandOption& option : syntax.options) {
        const QString name = named(option, option.names.first());
        const QString word = option.isRequired ? name : u'[' + name + u']';
        words.append(option.isRepeatable ? word + QStringLiteral("...") : word);
    }
    return words.join(u' ');
}

QString helpOf(const Command& command)
{
    const CommandSyntax syntax = command.syntax();
    TextTable table(2);
    for (const Operand& operand : syntax.operands) {
        table.addRow({indented(operand.name), operand.description});
    }
    for (const CommandOption& option : syntax.options) {
        table.addRow({indented(allNames(option)), option.description});
    }
    table.addRow({indented(QStringLiteral("-h, --help")), QStringLiteral("shows this text")});
    const QString usage = QStringLiteral("Usage: ") + usageOf(command);
    return wrapped(usage, TextTable::usualWidth).join(QStringLiteral("\n    ")) + u'\n' +
           paragraphs(command.summary() + u'.' + u'\n' + command.details()) + u'\n' + table.text();
}
