#pragma once

#include "core/Action.h"

#include <string_view>

namespace brastel {

/// Which rule the entry breaks in the position, in a few words, or empty if a person or the
/// computer could have made it here. Stricter than ActionFits, which tells only what can be
/// stepped over. Any numbers may be asked for; row 1 of the candidate tables is overwritten.
///
/// A ring may be placed as the game would have it: with one of the side's pieces 1 to 8, with the
/// piece that the start table names (a free setup wrote it there), or where the computer's list has
/// it. Nobody reads the second number of a placement. The turn may be passed by a side without a
/// candidate that can be played.
std::string_view BrokenRule(const Action& entry);

}  // namespace brastel
