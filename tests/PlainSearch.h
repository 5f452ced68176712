#pragma once

#include "engine/MoveCode.h"

#include <vector>

namespace brastel {

/// What a search of the position finds.
struct PlainResult {
    struct Candidate {
        MoveCode Code;
        /// Before the search the immediate value, afterwards the value to the search's depth.
        double Value;
    };
    /// The candidates of the side to move, in the order in which they are searched.
    std::vector<Candidate> Candidates;
    /// The highest value, and the codes of the candidates that have it, in the same order.
    double Best;
    std::vector<MoveCode> Tied;
};

/// Searches the position in the plainest way there is, looking at every answer that the beam keeps:
/// the judge of the real search, which leaves out what cannot matter. Uses row 1 of the candidate
/// tables; the position is the same after the call.
PlainResult PlainSearch(int depth);

}  // namespace brastel
