#pragma once

#include "faultface.h"

/// The installation of the tool.
std::unique_ptr<FaultFace> makeToolFace(const HallDescription& description);
