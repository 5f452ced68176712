#pragma once

#include "core/Position.h"

#include <string>

namespace brastel {

/// The position as lines of text for a fixed-width font: R3 is Red piece 3, (B5) a Blue ring
/// carrier, and ( ) a ring that nobody carries. Rows and columns are numbered from 1; the borders
/// leave the goals open. Below come the pieces that wait outside. ASCII only, no trailing blanks.
std::string BoardAsText(const Position& position);

}  // namespace brastel
