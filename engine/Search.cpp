#include "engine/Search.h"

#include "engine/Beam.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/RoundedValues.h"
#include "engine/TranspositionTable.h"
#include "engine/TreeSearch.h"

#include <algorithm>
#include <vector>

namespace brastel {

namespace {

struct RootCandidate {
    Candidate Which;
    /// Its entry in row 1.
    int Entry;
    /// Its value in units, or an upper bound if it is not the best.
    int Value;
};

using RootRow = std::vector<RootCandidate>;

/// Before both rings are placed no candidate has a value, and all plies have the same placements.
/// So only the number of plies counts.
void ValuePlacements(int depth) {
    double value = NoScore;
    for (int ply = depth - 1; ply >= SearchPly; --ply) value = NoScore / Discount - value;
    for (int n = 1; n <= CandidateCount[SearchPly]; ++n) MoveScores[SearchPly][n] = value;
}

/// One iteration: finds the highest value at the root, and puts a candidate that has it in front.
int SearchRow(RootRow& row) {
    const PlySave saved;
    int best = -Infinity;
    auto winner = row.begin();
    for (auto candidate = row.begin(); candidate != row.end(); ++candidate) {
        const auto search = candidate == row.begin() ? ValueOf : NullWindowValue;
        candidate->Value = search(SearchPly, candidate->Which, best, Infinity, saved);
        if (candidate->Value > best) winner = candidate;
        best = std::max(best, candidate->Value);
    }
    std::rotate(row.begin(), winner, winner + 1);
    return best;
}

/// Gives row 1 its final values. `best` is the highest value, and the candidate in front has it.
/// Candidates of this value get their rounded values, which decide the ties. The others get lower
/// ones that fall from entry to entry, so that the selection draws few random numbers for them: no
/// probability depends on this, but the games of a given seed do.
void ValueRow(const RootRow& row, int best) {
    const PlySave saved;
    const auto isBest = [&](const RootCandidate& candidate) {
        return &candidate == row.data() ||
               (candidate.Value == best &&
                ValueOf(SearchPly, candidate.Which, best - 1, best, saved) == best);
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
        MoveScores[SearchPly][candidate.Entry] = LostValueOf(candidate.Which, saved);
    }
}

void SearchRoot(Int16 depth) {
    SortCandidates(SearchPly);
    const int count = std::min<int>(CandidateCount[SearchPly], BeamWidth);
    CandidateCount[SearchPly] = ToInt16(count);
    // A winning candidate stands first, and all keep their immediate values.
    if (count == 0 || IsWin(MoveScores[SearchPly][1])) return;
    if (!BothRingsPlaced()) return ValuePlacements(depth);
    RootRow row;
    for (int n = 1; n <= count; ++n) {
        const Action action = DecodeMove(MoveList[SearchPly][n]);
        row.push_back({CandidateOf(action, static_cast<int>(MoveScores[SearchPly][n])), n, 0});
    }
    ClearTable();
    int best = 0;
    // Iterative deepening by two plies: depths that end with the same side's move have more best
    // replies in common.
    for (TreeDepth = 2 + depth % 2; TreeDepth <= depth; TreeDepth += 2) best = SearchRow(row);
    TreeDepth = depth;
    ValueRow(row, best);
}

bool CanBePlayed(MoveCode code) { return ActionFits(DecodeMove(code)); }

/// The best of row 1, or the best that is allowed; 0 if there is none. A coin is tossed for every
/// candidate that reaches the best value so far, also for the first. So the last of k equal ones is
/// taken with probability 1/2, the one before with 1/4, and so on.
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

int ValueOfAction(const Action& action, Int16 depth) {
    const int immediate = ScoreMove(action);
    if (depth == 1 || IsWin(immediate)) return UnitsPerPoint * immediate;
    const PlySave saved;
    const Candidate candidate = CandidateOf(action, immediate);
    ClearTable();
    for (TreeDepth = 2 + depth % 2; TreeDepth < depth; TreeDepth += 2) {
        ValueOf(SearchPly, candidate, -Infinity, Infinity, saved);
    }
    return ValueOf(SearchPly, candidate, -Infinity, Infinity, saved);
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
