#pragma once

#include "core/Action.h"

#include <string_view>

namespace brastel {

/// The rule that the entry breaks in the position (Pos), in a few words. Empty if a person or the
/// computer could have made the entry here. This is stricter than ActionFits, which only says
/// whether Forward can play it. The entry can have any numbers. Row 1 of the candidate tables is
/// overwritten.
///
/// A ring can be placed on one of the pieces 1 to 8, on the piece in the start table (a free setup
/// writes it there), or on a piece in the list of the computer. The second number of a placement is
/// ignored. A side can pass if it has no candidate that can be played.
std::string_view BrokenRule(const Action& entry);

}  // namespace brastel
