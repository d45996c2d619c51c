#pragma once

#include "command.h"

/// `plan`: what an installation would send to each hub.
class PlanCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString details() const override;
    CommandSyntax syntax() const override;
    bool needsPictures() const override { return true; }
    ExitCode run(const Arguments& arguments, Terminal& terminal) const override;
};
