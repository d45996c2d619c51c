#pragma once

#include "demoscenario.h"

#include <optional>

/// The devices of the hall that --hall=FILE describes, and what is entered for them; nothing, which
/// is said, when it describes none.
std::optional<DemoScenario> readScenario();

/// The value of --NAME=VALUE on the program's command line.
QString demoOption(const QString& name);

/// From now on prints warnings, and counts them.
void watchWarnings();

/// Plays in the program that is starting, as soon as it handles events: --part=1|2 of the demo,
/// with --hall=FILE and --pictures=FOLDER. Where the play fails, the program ends with 1.
///
/// Where the environment says TESSEL_DARK, it plays in the colours of a dark desktop; where it says
/// TESSEL_POINTS=16, with a font of 16 points.
void startPlaying();

/// Whether the play came to its end without a warning; of warnings it says how many there were.
bool wasPlayedWell();
