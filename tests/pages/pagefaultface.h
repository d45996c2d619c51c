#pragma once

#include "faultface.h"

/// The installation step of the wizard, and hands that use it.
std::unique_ptr<FaultFace> makePageFace(const HallDescription& description);
