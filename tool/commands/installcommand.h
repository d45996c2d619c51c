#pragma once

#include "command.h"

/// `install`: what step 8 of the wizard does, from a file.
class InstallCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString details() const override;
    CommandSyntax syntax() const override;
    bool needsPictures() const override { return true; }
    ExitCode run(const Arguments& arguments, Terminal& terminal) const override;
};
