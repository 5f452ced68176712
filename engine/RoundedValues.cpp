#include "engine/RoundedValues.h"

#include "engine/Beam.h"
#include "engine/TreeSearch.h"

namespace brastel {

namespace {

/// Makes the best candidate known, and keeps the beam.
Beam FindBeam(CandidateSet& set, int ply) {
    BeginCandidates(set);
    GenerateBest(set);
    return KeepBeam(set, BeamWidthAt(ply));
}

/// The value of the position at a ply, given in units, as `double` arithmetic gives it. The
/// candidate before it gains `gain`. If `gain` minus the result cannot be above `least`, the search
/// stops early, and the result is only a lower bound.
double RoundedValue(int ply, int value, double gain, double least) {
    const double unrounded = static_cast<double>(value) / UnitsPerPoint;
    if (ply == TreeDepth) return unrounded;
    CandidateSet set;
    const Beam beam = FindBeam(set, ply);
    if (IsWin(set.Best)) return unrounded;
    const PlySave saved;
    double best = NoScore;
    for (std::size_t n = 0; n < beam.Count && gain - best > least; ++n) {
        const Candidate& candidate = beam.Candidates[n];
        if (ValueOf(ply, candidate, value - 1, value, saved) < value) continue;
        best = std::max(best, RoundedValueOf(ply, candidate, value, best, saved));
    }
    return best;
}

}  // namespace

double RoundedValueOf(int ply, const Candidate& candidate, int value, double least,
                      const PlySave& saved) {
    const double gain = candidate.Value / Discount;
    ApplyMoveQuiet(ActionOf(candidate));
    const double answer = RoundedValue(ply + 1, Discounted(candidate.Value) - value, gain, least);
    saved.Restore();
    return gain - answer;
}

double LostValueOf(const Candidate& candidate, const PlySave& saved) {
    assert(TreeDepth >= 3);
    constexpr int ply = 2;
    const double gain = candidate.Value / Discount;
    ApplyMoveQuiet(ActionOf(candidate));
    const PlySave answered;
    CandidateSet set;
    const Beam beam = FindBeam(set, ply);
    double answer = NoScore;
    int best = NoScore * UnitsPerPoint;
    for (std::size_t n = 0; n < beam.Count && gain - answer >= NoScore; ++n) {
        const Candidate& reply = beam.Candidates[n];
        const int value = ValueOf(ply, reply, best - 1, Infinity, answered);
        if (value < best) continue;
        best = value;
        answer = std::max(answer, RoundedValueOf(ply, reply, value, answer, answered));
    }
    saved.Restore();
    return gain - answer;
}

}  // namespace brastel
