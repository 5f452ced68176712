#pragma once

#include "engine/Survey.h"

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
Candidate FirstOfBest(const Survey& survey);

/// The first `width` candidates, 1 to MaxBeam, of the sorted row, or all if there are less. Surveys
/// what is missing; the best is surveyed.
Beam KeepBeam(Survey& survey, int width);

}  // namespace brastel
