#pragma once

#include "hallsearch.h"
#include "interfacechoice.h"

#include <optional>

class Arguments;
class Terminal;

/// The interface to search on, by the command's --interface; nothing when there is none to be had,
/// which is said.
std::optional<InterfaceChoice> searchSide(const Arguments& arguments, Terminal& terminal);

/// Searches on the side that the search was made for, and waits for its end; false when that cannot
/// be, which is said.
bool searchToTheEnd(HallSearch& search, const InterfaceChoice& side, Terminal& terminal);
