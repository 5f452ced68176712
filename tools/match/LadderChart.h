#pragma once

#include "tools/match/Ladder.h"

namespace brastel {

/// The ladder as an SVG picture, for light and dark pages. Each strength has a line, the lowest at
/// the bottom, with its Elo points above the lowest strength and their error bar. A bound is an
/// arrow. An unknown value has no mark.
std::string LadderChart(const Ladder& ladder);

}  // namespace brastel
