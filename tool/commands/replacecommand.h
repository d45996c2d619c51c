#pragma once

#include "command.h"

/// `replace FILE OLD NEW -o FILE`: a device in the place of one that was swapped.
class ReplaceCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString details() const override;
    CommandSyntax syntax() const override;
    bool needsPictures() const override { return true; }
    ExitCode run(const Arguments& arguments, Terminal& terminal) const override;
};
