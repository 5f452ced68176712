#pragma once

#include <string>

namespace brastel {

/// Names the first fault of the position, or is empty when there is none: board cells and piece
/// squares agree, no two pieces share a square, the margin is empty, rings, last hit, turn and
/// counters are in range (the piece counts may hold anything: see Position). Asserted after set-up
/// and after every action, so that a wrong step is found where it is made.
std::string FirstInconsistency();

inline bool PositionIsConsistent() { return FirstInconsistency().empty(); }

}  // namespace brastel
