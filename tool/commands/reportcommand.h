#pragma once

#include "command.h"

/// `report`: the record of a hall that is handed over to its owner.
class ReportCommand : public Command
{
public:
    QString name() const override;
    QString summary() const override;
    QString details() const override;
    CommandSyntax syntax() const override;
    bool needsPictures() const override { return true; }
    ExitCode run(const Arguments& arguments, Terminal& terminal) const override;
};
