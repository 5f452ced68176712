#pragma once

#include "tools/match/Ladder.h"

namespace brastel {

/// The ladder as an SVG picture, for light and dark pages: a line for each strength, the lowest at
/// the foot, with its Elo points above the foot and their error. A mere bound is an arrow, an
/// unknown value has no mark.
std::string LadderChart(const Ladder& ladder);

}  // namespace brastel
