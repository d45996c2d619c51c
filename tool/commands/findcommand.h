#pragma once

#include "command.h"

/// `find`: the devices that answer, and why one is not taken or does not answer.
class FindCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString details() const override;
    CommandSyntax syntax() const override;
    ExitCode run(const Arguments& arguments, Terminal& terminal) const override;
};
