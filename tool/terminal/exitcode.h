#pragma once

/// What the tool tells the program that started it.
enum class ExitCode
{
    AllIsWell = 0,      ///< all is as it should be
    SomethingIsNot = 1, ///< something is not, and it was named
    WrongUsage = 2,     ///< the arguments cannot be meant like that
    CouldNotBeTried = 3 ///< a file or the network stood in the way
};
