#pragma once

/// Whether this system has a font that letters and digits can be written with. Without one a record
/// would be pages of empty boxes.
bool hasFonts();
