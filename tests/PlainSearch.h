#pragma once

#include "engine/MoveCode.h"

#include <vector>

namespace brastel {

/// What a search of the position finds.
struct PlainResult {
    struct Candidate {
        MoveCode Code;
        /// Before the search the immediate value, afterwards the value to the search's depth, or
        /// for a candidate that cannot be the best a bound of it.
        double Value;
    };
    /// The candidates of the side to move, in the order in which they are searched.
    std::vector<Candidate> Candidates;
    /// The highest value (NoScore without candidates), and the codes of the candidates that have
    /// it, in the same order.
    double Best;
    std::vector<MoveCode> Tied;
};

/// Sums up candidates with their final values.
PlainResult ResultOf(const std::vector<PlainResult::Candidate>& candidates);

/// Searches the position `depth` plies ahead, 1 to MaxPly, in the plainest way that makes the same
/// choices: the judge of the real search, and what its speed is compared with. Uses row 1 of the
/// candidate tables; the position is the same after the call.
PlainResult PlainSearch(int depth);

}  // namespace brastel
