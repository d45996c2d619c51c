#pragma once

#include "command.h"

/// `walk`: proves that every layout recalls on every hub.
class WalkCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString details() const override;
    CommandSyntax syntax() const override;
    bool needsPictures() const override { return true; }
    ExitCode run(const Arguments& arguments, Terminal& terminal) const override;
};
