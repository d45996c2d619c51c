#pragma once

#include "hall.h"
#include "hallondisk.h"

/// A hall in the test's own event loop, and a file that describes it. Peripherals stand for its two
/// hubs: they follow every number.
struct FollowingHall
{
    /// The addresses of the two, of which the second follows the first. That they cannot be opened
    /// fails the test.
    FollowingHall(const QString& stage, const QString& gallery);

    HallOnDisk file;
    Hall hall;
};
