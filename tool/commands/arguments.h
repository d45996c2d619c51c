#pragma once

#include "command.h"

#include <QHash>

/// The arguments of one command, held against its syntax.
class Arguments
{
public:
    /// Reads what follows the command's word; see fault().
    Arguments(const CommandSyntax& syntax, const QStringList& arguments);

    /// What is wrong with them, in one line; empty when nothing is, and when help is asked for.
    QString fault() const { return m_fault; }

    /// Help was asked for, whatever else there is.
    bool wantsHelp() const { return m_wantsHelp; }

    /// The operand at this place of the syntax.
    QString operand(qsizetype index) const { return m_operands.value(index); }

    /// Whether the option was given, by the first of its names in the syntax.
    bool has(const QString& option) const { return m_values.contains(option); }

    /// The value of an option, empty when it was not given, and all values of one that may be
    /// given more than once. A value that was given is never empty.
    QString value(const QString& option) const { return m_values.value(option).value(0); }
    QStringList values(const QString& option) const { return m_values.value(option); }

private:
    void read(const CommandSyntax& syntax, const QStringList& arguments);
    QString faultOfOption(const CommandOption& option) const;
    QString faultOfOperands(const QList<Operand>& operands) const;

    QStringList m_operands;
    QHash<QString, QStringList> m_values; ///< a switch has as many empty ones as it was given
    bool m_wantsHelp = false;
    QString m_fault;
};

/// An option as a person writes it: "--json", or "-o" for one letter.
QString writtenOption(const QString& name);
