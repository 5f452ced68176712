#include "engine/TreeSearch.h"

#include "engine/Beam.h"
#include "engine/TranspositionTable.h"

namespace brastel {

int TreeDepth = 2;
std::uint64_t SearchedPositions = 0;

namespace {

/// A win one ply nearer counts this much more.
constexpr int WinBonusPerPly = 1000;

int WinAt(int ply) { return UnitsPerPoint * (WinValue + (TreeDepth - ply) * WinBonusPerPly); }

/// Units as points, rounded down and up.
constexpr int PointsBelow(int units) {
    return units >= 0 ? units / UnitsPerPoint : -((UnitsPerPoint - 1 - units) / UnitsPerPoint);
}
constexpr int PointsAbove(int units) { return -PointsBelow(-units); }

// ---- The move picker ----

/// Returns the beam of a position one by one, the likely best first: the hash move, the best
/// candidate, the rest of the beam. The order changes no value. Mostly the first reply causes a
/// cut-off, so each stage is computed only when it is reached.
struct MovePicker {
    int Ply;
    /// From the transposition table; Origin 0 is none.
    Candidate HashMove{};
    enum { AtHashMove, AtFirst, AtBeam, InBeam } Stage = AtHashMove;
    CandidateSet Candidates;
    Beam Kept;
    std::size_t Next;
};

Candidate& First(MovePicker& picker) { return picker.Kept.Candidates[0]; }

const Candidate* NextInBeam(MovePicker& picker) {
    while (picker.Next < picker.Kept.Count) {
        const Candidate* reply = &picker.Kept.Candidates[picker.Next++];
        if (*reply != picker.HashMove) return reply;
    }
    return nullptr;
}

/// The next reply, or null after the last. A winning reply comes first: positions that have one are
/// not stored, so there is no hash move before it.
const Candidate* NextReply(MovePicker& picker) {
    switch (picker.Stage) {
        case MovePicker::AtHashMove:
            picker.Stage = MovePicker::AtFirst;
            if (picker.HashMove.Origin != 0) return &picker.HashMove;
            [[fallthrough]];
        case MovePicker::AtFirst:
            ++SearchedPositions;
            BeginCandidates(picker.Candidates);
            GenerateBest(picker.Candidates);
            if (picker.Candidates.Best == NoScore) return nullptr;
            picker.Stage = MovePicker::AtBeam;
            First(picker) = FirstOfBest(picker.Candidates);
            if (First(picker) != picker.HashMove) return &First(picker);
            [[fallthrough]];
        case MovePicker::AtBeam:
            picker.Kept = KeepBeam(picker.Candidates, BeamWidthAt(picker.Ply));
            assert(First(picker) == FirstOfBest(picker.Candidates));
            picker.Next = 1;
            picker.Stage = MovePicker::InBeam;
            [[fallthrough]];
        default:
            return NextInBeam(picker);
    }
}

// ---- The tree ----

int SearchDeepest(int low, int high) {
    ++SearchedPositions;
    return UnitsPerPoint * HighestValue(PointsBelow(low), PointsAbove(high));
}

/// Stores what a search between the bounds has found out about a position.
void Store(TableEntry& entry, const TableEntry& before, int value, int low, int high,
           const Candidate& reply) {
    const bool hadMove = before.HashMove.Origin != 0;
    const bool hasBounds = before.Depth == TreeDepth;
    entry = before;
    entry.Depth = TreeDepth;
    entry.Lower = value > low ? value : hasBounds ? before.Lower : -Infinity;
    entry.Upper = value < high ? value : hasBounds ? before.Upper : Infinity;
    // If no reply is better than `low`, the values are upper bounds and do not tell the best.
    if (value > low || !hadMove) entry.HashMove = reply;
}

/// Searches the replies of a position one after another and leaves the best in `best`.
int TryReplies(MovePicker& picker, int low, int high, Candidate& best) {
    const PlySave saved;
    int value = NoScore * UnitsPerPoint;
    while (value < high) {
        const Candidate* reply = NextReply(picker);
        if (reply == nullptr) break;
        if (IsWin(reply->Value)) return WinAt(picker.Ply);
        const int bound = std::max(low, value);
        const bool isFirst = best.Origin == 0;
        const int found = isFirst ? ValueOf(picker.Ply, *reply, bound, high, saved)
                                  : NullWindowValue(picker.Ply, *reply, bound, high, saved);
        if (isFirst || found > value) best = *reply;
        value = std::max(value, found);
    }
    return value;
}

/// What the side to move can reach at a ply: exact between the bounds, otherwise a bound itself.
/// The last ply but one is not stored: most positions are there, and few are reached twice.
int SearchReplies(int ply, int low, int high) {
    if (ply == TreeDepth) return SearchDeepest(low, high);
    Candidate best{};
    MovePicker picker;
    picker.Ply = ply;
    if (ply == TreeDepth - 1) return TryReplies(picker, low, high, best);
    TableEntry& entry = ProbeTable(ply);
    const TableEntry before = entry;
    if (before.Depth == TreeDepth) {
        if (before.Lower >= high || before.Lower == before.Upper) return before.Lower;
        if (before.Upper <= low) return before.Upper;
    }
    picker.HashMove = before.HashMove;
    const int value = TryReplies(picker, low, high, best);
    if (best.Origin != 0) Store(entry, before, value, low, high, best);
    return value;
}

}  // namespace

int ValueOf(int ply, const Candidate& candidate, int low, int high, const PlySave& saved) {
    const int gain = Discounted(candidate.Value);
    ApplyMoveQuiet(ActionOf(candidate));
    const int value = gain - SearchReplies(ply + 1, gain - high, gain - low);
    saved.Restore();
    return value;
}

int NullWindowValue(int ply, const Candidate& candidate, int low, int high, const PlySave& saved) {
    const int value = ValueOf(ply, candidate, low, low + 1, saved);
    if (value <= low || value >= high) return value;
    return ValueOf(ply, candidate, value - 1, high, saved);
}

}  // namespace brastel
