#pragma once

#include "exitcode.h"

#include <QList>
#include <QString>
#include <QStringList>

class Arguments;
class Terminal;

/// One argument that is no option, such as the FILE of a command.
struct Operand
{
    QString name;
    QString description;
};

/// One option of a command.
struct CommandOption
{
    QStringList names; ///< without dashes; those of one letter are short ones
    QString description;
    QString valueName = {};    ///< what its value is called in the help; empty for a switch
    bool isRepeatable = false; ///< whether it may be given more than once
    bool isRequired = false;   ///< whether it has to be given
};

/// What a command takes.
struct CommandSyntax
{
    QList<Operand> operands; ///< all of them are required
    QList<CommandOption> options;
};

/// One thing that the tool can do. Commands keep nothing between two runs and know the outside only
/// by what they are handed.
class Command
{
public:
    Command() = default;
    Command(const Command&) = delete;
    Command& operator=(const Command&) = delete;
    Command(Command&&) = delete;
    Command& operator=(Command&&) = delete;
    virtual ~Command() = default;

    /// The word that it is called by.
    virtual QString name() const = 0;

    /// What it does, in a line of at most 60 letters without a full stop.
    virtual QString summary() const = 0;

    /// What else its user has to know; paragraphs parted by line feeds.
    virtual QString details() const { return {}; }

    virtual CommandSyntax syntax() const = 0;

    /// Whether it reads or writes configuration files. These hold pictures, which only an
    /// application with graphics can hold.
    virtual bool needsPictures() const { return false; }

    /// Does it. There is an application with an event loop that nobody else runs. `arguments` have
    /// been held against syntax(); what else is wrong with them the command says itself.
    virtual ExitCode run(const Arguments& arguments, Terminal& terminal) const = 0;
};
