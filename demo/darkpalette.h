#pragma once

class QPalette;

/// The colours of a dark desktop.
QPalette darkPalette();
