#pragma once

#include "halldescription.h"

#include <functional>
#include <memory>

class Hall;

/// One face of an installation in front of a simulated hall, and a user who knows the password of
/// every hub: what the table of faults asks of each face. Hubs count from 0.
class FaultFace
{
public:
    FaultFace() = default;
    FaultFace(const FaultFace&) = delete;
    FaultFace& operator=(const FaultFace&) = delete;
    FaultFace(FaultFace&&) = delete;
    FaultFace& operator=(FaultFace&&) = delete;
    virtual ~FaultFace() = default;

    virtual Hall& hall() = 0;

    /// From then on the user gives the first hub no password that was asked for oftener than this.
    virtual void giveUpAfter(int answers) = 0;

    /// Installs all hubs.
    virtual void install() = 0;
    virtual void waitUntilQuiet() = 0;
    virtual bool waitUntilOver() = 0;
    /// Lets the time-out of the first hub's installation pass so far.
    virtual void passSeconds(int seconds) = 0;

    /// "Installing...", "Done" or "Error".
    virtual QString status(int hub) const = 0;
    /// What is said of an "Error".
    virtual QString reason(int hub) const = 0;
    /// How often the first hub's installation has told an end since install().
    virtual int endCount() const = 0;
    /// How often the first hub's password was asked for.
    virtual int promptCount() const = 0;
};

using FaultFaceMaker = std::function<std::unique_ptr<FaultFace>(const HallDescription&)>;
