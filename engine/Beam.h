#pragma once

#include "engine/CandidateSet.h"

/// Which of the surveyed candidates the search looks at: those that GenerateMoves and
/// SortCandidates put first, found without listing or sorting the rest.
namespace brastel {

constexpr int MaxBeam = 32;

/// The candidates that a ply keeps, in sorted order.
struct Beam {
    std::array<Candidate, MaxBeam> Candidates;
    std::size_t Count;
};

/// The candidate that the sort puts first. The best is surveyed, and there is a candidate.
Candidate FirstOfBest(const CandidateSet& set);

/// The first `width` candidates, 1 to MaxBeam, of the sorted row, or all if there are less. Surveys
/// what is missing; the best is surveyed.
Beam KeepBeam(CandidateSet& set, int width);

}  // namespace brastel
