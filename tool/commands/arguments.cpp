#include "arguments.h"

#include <QCommandLineParser>

#include <algorithm>

namespace {

QCommandLineOption parserOption(const CommandOption& option)
{
    return {option.names, option.description, option.valueName};
}

QString missingValue(const CommandOption& option)
{
    return QStringLiteral("%1 needs a value: %2")
        .arg(writtenOption(option.names.first()), option.valueName);
}

/// What is left when no option is unknown: a value that is missing or is one too many.
QString faultOfValue(const CommandSyntax& syntax, const QString& given)
{
    for (const CommandOption& option : syntax.options) {
        for (const QString& name : option.names) {
            if (writtenOption(name) == given && !option.valueName.isEmpty()) {
                return missingValue(option);
            }
        }
    }
    return QStringLiteral("%1 takes no value").arg(given);
}

qsizetype timesGiven(const CommandOption& option, const QStringList& given)
{
    return std::count_if(given.begin(), given.end(),
                         [&option](const QString& name) { return option.names.contains(name); });
}

} // namespace

Arguments::Arguments(const CommandSyntax& syntax, const QStringList& arguments)
{
    read(syntax, arguments);
    for (const CommandOption& option : syntax.options) {
        if (m_fault.isEmpty()) {
            m_fault = faultOfOption(option);
        }
    }
    if (m_fault.isEmpty()) {
        m_fault = faultOfOperands(syntax.operands);
    }
    if (m_wantsHelp) {
        m_fault.clear();
    }
}

void Arguments::read(const CommandSyntax& syntax, const QStringList& arguments)
{
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    QCommandLineParser parser;
    parser.addOption(help);
    for (const CommandOption& option : syntax.options) {
        parser.addOption(parserOption(option));
    }
    // The parser passes over its first argument, where it expects the program's name.
    if (!parser.parse(QStringList(QString()) + arguments)) {
        const QString unknown = parser.unknownOptionNames().value(0);
        m_fault = unknown.isEmpty()
                      ? faultOfValue(syntax, parser.errorText().section(u'\'', 1, -2))
                      : QStringLiteral("unknown option \"%1\"").arg(writtenOption(unknown));
    }
    m_wantsHelp = parser.isSet(help);
    m_operands = parser.positionalArguments();
    const QStringList given = parser.optionNames();
    for (const CommandOption& option : syntax.options) {
        QStringList values = parser.values(option.names.first());
        if (option.valueName.isEmpty()) {
            values.resize(timesGiven(option, given));
        }
        if (!values.isEmpty()) {
            m_values.insert(option.names.first(), values);
        }
    }
}

QString Arguments::faultOfOption(const CommandOption& option) const
{
    const QStringList given = m_values.value(option.names.first());
    const QString written = writtenOption(option.names.first());
    if (given.size() > 1 && !option.isRepeatable) {
        return QStringLiteral("%1 is given more than once").arg(written);
    }
    if (given.isEmpty() && option.isRequired) {
        return QStringLiteral("%1 %2 is missing").arg(written, option.valueName);
    }
    return !option.valueName.isEmpty() && given.contains(QString()) ? missingValue(option)
                                                                    : QString();
}

QString Arguments::faultOfOperands(const QList<Operand>& operands) const
{
    if (m_operands.size() > operands.size()) {
        return QStringLiteral("one argument too many: %1").arg(m_operands.at(operands.size()));
    }
    for (qsizetype index = 0; index < operands.size(); ++index) {
        if (m_operands.value(index).isEmpty()) {
            return QStringLiteral("%1 is missing").arg(operands.at(index).name);
        }
    }
    return {};
}

QString writtenOption(const QString& name)
{
    return (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name;
}
