#pragma once

#include "engine/CandidateSet.h"

/// Beam search: the search looks only at the first candidates of the sorted row. They are found in
/// a CandidateSet without listing and sorting all.
namespace brastel {

/// The root keeps 32 candidates, ply 2 keeps 7 fewer, ply 3 another 6 fewer, and so on.
constexpr int BeamWidth = 32;
constexpr int BeamShrink = 7;

/// Candidates kept at a ply, 1 to 10: 32, 25, 19, 14, 10, 7, 5, 4, 4, 5.
constexpr int BeamWidthAt(int ply) {
    const int steps = ply - 1;
    return BeamWidth - steps * BeamShrink + steps * (steps - 1) / 2;
}

/// The candidates that a ply keeps, in sorted order.
struct Beam {
    std::array<Candidate, BeamWidth> Candidates;
    std::size_t Count;
};

/// The candidate that SortCandidates puts first. There must be one, and GenerateBest must have run.
Candidate FirstOfBest(const CandidateSet& set);

/// The first `width` candidates, 1 to BeamWidth, of the sorted row, or all if there are fewer.
/// Generates what is missing. GenerateBest must have run.
Beam KeepBeam(CandidateSet& set, int width);

}  // namespace brastel
