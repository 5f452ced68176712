#include "engine/Search.h"

#include "core/Position.h"
#include "core/QuietMove.h"
#include "engine/Beam.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/SearchMemory.h"
#include "engine/TreeSearch.h"

#include <algorithm>
#include <span>

namespace brastel {

std::uint64_t SearchedPositions = 0;

namespace {

struct RootCandidate {
    Candidate Which;
    /// Its entry in row 1.
    int Entry;
    /// Its value, or a bound from above if it loses, in units.
    int Value;
};

using RootRow = std::span<RootCandidate>;

/// Before both rings are placed no candidate has a value, and all plies list the same placements,
/// so only the number of plies counts.
void ValuePlacements(int depth) {
    double value = NoScore;
    for (int ply = depth - 1; ply >= SearchPly; --ply) value = NoScore / Discount - value;
    for (int n = 1; n <= CandidateCount[SearchPly]; ++n) MoveScores[SearchPly][n] = value;
}

/// Finds the highest value at the root, and leaves a candidate that has it in front.
int SearchRow(RootRow row) {
    const PlySave saved;
    int best = -Infinity;
    auto winner = row.begin();
    for (auto candidate = row.begin(); candidate != row.end(); ++candidate) {
        candidate->Value = candidate == row.begin()
                               ? ValueOf(SearchPly, candidate->Which, -Infinity, Infinity, saved)
                               : ValueOfLater(SearchPly, candidate->Which, best, Infinity, saved);
        if (candidate->Value > best) winner = candidate;
        best = std::max(best, candidate->Value);
    }
    std::rotate(row.begin(), winner, winner + 1);
    return best;
}

/// Gives row 1 its final values; `best` is the value of the candidate in front, and the highest.
/// Values that are equal can still differ in their last digit, which decides what is tied. Losers
/// are left with bounds below the best, each below the one before: with the true values, too, the
/// first mostly stays ahead of the other losers, and a coin is tossed only for who gets ahead.
void ValueRow(RootRow row, int best) {
    const PlySave saved;
    const auto isBest = [&](const RootCandidate& candidate) {
        if (&candidate == row.data()) return true;
        return candidate.Value == best &&
               ValueOf(SearchPly, candidate.Which, best - 1, best, saved) == best;
    };
    double highest = -Infinity;
    for (const RootCandidate& candidate : row) {
        double& value = MoveScores[SearchPly][candidate.Entry];
        value = static_cast<double>(best - candidate.Entry) / UnitsPerPoint;
        if (!isBest(candidate)) continue;
        value = RoundedValueOf(SearchPly, candidate.Which, best, -Infinity, saved);
        highest = std::max(highest, value);
    }
    if (highest >= NoScore) return;
    for (const RootCandidate& candidate : row) {
        MoveScores[SearchPly][candidate.Entry] = HopelessValueOf(candidate.Which, saved);
    }
}

void SearchRoot(Int16 depth) {
    SortCandidates(SearchPly);
    const int count = std::min<int>(CandidateCount[SearchPly], BeamWidth);
    CandidateCount[SearchPly] = ToInt16(count);
    // A winning candidate is sorted first, and all keep their immediate values.
    if (count == 0 || IsWin(MoveScores[SearchPly][1])) return;
    if (!BothRingsPlaced()) return ValuePlacements(depth);
    std::array<RootCandidate, BeamWidth> candidates;
    for (int n = 1; n <= count; ++n) {
        const auto [origin, destination] = DecodeMove(MoveList[SearchPly][n]);
        const int value = static_cast<int>(MoveScores[SearchPly][n]);
        candidates[static_cast<std::size_t>(n - 1)] = {CandidateOf({origin, destination}, value), n,
                                                       0};
    }
    const RootRow row(candidates.data(), static_cast<std::size_t>(count));
    ForgetPositions();
    int best = 0;
    // The deepest ply being the same side's each time, shallower searches foresee it best.
    for (int shallower = 2 + depth % 2; shallower <= depth; shallower += 2) {
        BeginTree(shallower);
        best = SearchRow(row);
    }
    ValueRow(row, best);
}

bool CanBePlayed(MoveCode code) { return ActionFits(DecodeMove(code)); }

/// The best of row 1, or the best that is allowed; 0 where there is none. Each candidate that
/// reaches the best so far tosses a coin, the first one to do so included, so the last of k equals
/// is taken with probability 1/2, the one before with 1/4.
Int16 SelectFromRoot(bool (*isAllowed)(MoveCode) = nullptr) {
    double best = -Infinity;
    int chosen = 0;
    for (int n = 1; n <= CandidateCount[SearchPly]; ++n) {
        const double value = MoveScores[SearchPly][n];
        if (value < best || (isAllowed && !isAllowed(MoveList[SearchPly][n]))) continue;
        const bool isBetter = value > best;
        best = value;
        const bool wonToss = RandomBelow(2) == 1;
        if (isBetter || wonToss) chosen = n;
    }
    return ToInt16(chosen);
}

}  // namespace

Int16 ChooseCandidate(Int16 depth) {
    SearchedPositions = 1;
    GenerateMoves(SearchPly);
    if (depth > 1) SearchRoot(depth);
    return SelectFromRoot();
}

Int16 ChoosePlayable() { return SelectFromRoot(CanBePlayed); }

bool MustPass() {
    GenerateMoves(SearchPly);
    return ChoosePlayable() == 0;
}

Action PlayableAction(Int16 chosen) {
    const MoveCode code = MoveList[SearchPly][chosen];
    return DecodeMove(CanBePlayed(code) ? code : MoveList[SearchPly][ChoosePlayable()]);
}

}  // namespace brastel
