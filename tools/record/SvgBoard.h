#pragma once

#include "core/Position.h"

#include <string>
#include <string_view>

namespace brastel {

/// The position as an SVG picture with a background. It looks like the board in the window, with
/// numbered rows, columns and pieces. `caption` is below the board and is the title of the picture.
/// It must be plain text without the reserved characters of XML. Each piece has a title in words
/// (play/Words.h) for screen readers.
std::string BoardAsSvg(const Position& position, std::string_view caption);

}  // namespace brastel
