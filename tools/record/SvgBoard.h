#pragma once

#include "core/Position.h"

#include <string>
#include <string_view>

namespace brastel {

/// The position as an SVG picture of its own ground, drawn like the game's board with numbered
/// rows, columns and pieces. `caption` stands below the board and is the picture's name; it must be
/// plain text without the characters that XML reserves. Every piece is named for readers that do
/// not see it, in words as in Words.h.
std::string BoardAsSvg(const Position& position, std::string_view caption);

}  // namespace brastel
