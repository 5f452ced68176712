#pragma once

#include "core/Position.h"

#include <string>

namespace brastel {

/// The position as lines of text for a fixed-width font. R3 is Red piece 3, (B5) is Blue piece 5
/// with a ring, and ( ) is a ring without a carrier. Rows and columns are numbered from 1. The
/// border is open at both goals. Below the board is a list of the pieces outside. ASCII only, no
/// spaces at line ends.
std::string BoardAsText(const Position& position);

}  // namespace brastel
