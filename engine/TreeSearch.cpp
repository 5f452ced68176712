#include "engine/TreeSearch.h"

#include "engine/Beam.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "engine/SearchMemory.h"

namespace brastel {

namespace {

int Depth = 2;

/// NoScore in units.
constexpr int NoUnits = NoScore * UnitsPerPoint;

/// A win one ply nearer counts this much more.
constexpr int WinBonusPerPly = 1000;

int WinAt(int ply) { return UnitsPerPoint * (WinValue + (Depth - ply) * WinBonusPerPly); }

constexpr int PointsBelow(int units) {
    return units >= 0 ? units / UnitsPerPoint : -((UnitsPerPoint - 1 - units) / UnitsPerPoint);
}
constexpr int PointsAbove(int units) { return -PointsBelow(-units); }

// ---- Replies ----

/// The beam of a position, likely best first: the order changes no value, and mostly the first
/// reply refutes. What is not asked for is not found out.
struct Replies {
    int Ply;
    /// From memory; Origin 0 is none.
    Candidate Remembered;
    enum { AtRemembered, AtFirst, AtBeam, InBeam } Stage = AtRemembered;
    CandidateSet Candidates;
    Beam Kept;
    std::size_t Next;
};

Candidate& First(Replies& replies) { return replies.Kept.Candidates[0]; }

const Candidate* NextInBeam(Replies& replies) {
    while (replies.Next < replies.Kept.Count) {
        const Candidate* reply = &replies.Kept.Candidates[replies.Next++];
        if (*reply != replies.Remembered) return reply;
    }
    return nullptr;
}

/// The next reply, or null after the last. A winning one comes alone: nothing is remembered of its
/// position.
const Candidate* NextReply(Replies& replies) {
    switch (replies.Stage) {
        case Replies::AtRemembered:
            replies.Stage = Replies::AtFirst;
            if (replies.Remembered.Origin != 0) return &replies.Remembered;
            [[fallthrough]];
        case Replies::AtFirst:
            ++SearchedPositions;
            BeginCandidates(replies.Candidates);
            GenerateBest(replies.Candidates);
            if (replies.Candidates.Best == NoScore) return nullptr;
            replies.Stage = Replies::AtBeam;
            First(replies) = FirstOfBest(replies.Candidates);
            if (First(replies) != replies.Remembered) return &First(replies);
            [[fallthrough]];
        case Replies::AtBeam:
            replies.Kept = KeepBeam(replies.Candidates, BeamWidthAt(replies.Ply));
            replies.Stage = Replies::InBeam;
            replies.Next = 1;
            [[fallthrough]];
        default:
            return NextInBeam(replies);
    }
}

// ---- The tree ----

int SearchDeepest(int low, int high) {
    ++SearchedPositions;
    return UnitsPerPoint * HighestValue(PointsBelow(low), PointsAbove(high));
}

/// Keeps what a search between the bounds has found out about a position.
void Remember(MemoryEntry& entry, const MemoryEntry& before, int value, int low, int high,
              const Candidate& reply) {
    const bool hadReply = before.Reply.Origin != 0;
    const bool hasBounds = before.Depth == Depth;
    entry = before;
    entry.Depth = Depth;
    entry.Lower = value > low ? value : hasBounds ? before.Lower : -Infinity;
    entry.Upper = value < high ? value : hasBounds ? before.Upper : Infinity;
    // If all replies are too weak, none has proved best.
    if (value > low || !hadReply) entry.Reply = reply;
}

/// Tries the replies of a position one after another and leaves the best in `best`.
int TryReplies(Replies& replies, int low, int high, Candidate& best) {
    const PlySave saved;
    int value = NoUnits;
    while (value < high) {
        const Candidate* reply = NextReply(replies);
        if (reply == nullptr) break;
        if (IsWin(reply->Value)) return WinAt(replies.Ply);
        const int promised = std::max(low, value);
        const bool isFirst = best.Origin == 0;
        const int found = isFirst ? ValueOf(replies.Ply, *reply, promised, high, saved)
                                  : ValueOfLater(replies.Ply, *reply, promised, high, saved);
        if (isFirst || found > value) best = *reply;
        value = std::max(value, found);
    }
    return value;
}

/// What the side to move can reach at a ply: exact between the bounds, at or beyond them a bound
/// itself. The last ply but one is not remembered: most positions are there, and few come twice.
int SearchReplies(int ply, int low, int high) {
    if (ply == Depth) return SearchDeepest(low, high);
    Candidate best{};
    Replies replies;
    replies.Ply = ply;
    replies.Remembered = {};
    if (ply == Depth - 1) return TryReplies(replies, low, high, best);
    MemoryEntry& entry = RecallPosition(ply);
    const MemoryEntry before = entry;
    if (before.Depth == Depth) {
        if (before.Lower >= high || before.Lower == before.Upper) return before.Lower;
        if (before.Upper <= low) return before.Upper;
    }
    replies.Remembered = before.Reply;
    const int value = TryReplies(replies, low, high, best);
    if (best.Origin != 0) Remember(entry, before, value, low, high, best);
    return value;
}

/// The value of the position at a ply, given in units, as plain arithmetic rounds it. It is the
/// answer to a candidate above it that gains `gain`; once that candidate is shown to be worth no
/// more than `least`, any bound from below will do.
double RoundedValue(int ply, int value, double gain, double least) {
    if (ply == Depth) return static_cast<double>(value) / UnitsPerPoint;
    CandidateSet set;
    BeginCandidates(set);
    GenerateBest(set);
    if (set.Best == NoScore) return NoScore;
    if (IsWin(set.Best)) return static_cast<double>(value) / UnitsPerPoint;
    const Beam beam = KeepBeam(set, BeamWidthAt(ply));
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

void BeginTree(int depth) { Depth = depth; }

int ValueOf(int ply, const Candidate& candidate, int low, int high, const PlySave& saved) {
    const int gain = Discounted(candidate.Value);
    ApplyMoveQuiet(ActionOf(candidate));
    const int value = gain - SearchReplies(ply + 1, gain - high, gain - low);
    saved.Restore();
    return value;
}

int ValueOfLater(int ply, const Candidate& candidate, int low, int high, const PlySave& saved) {
    const int value = ValueOf(ply, candidate, low, low + 1, saved);
    if (value <= low || value >= high) return value;
    return ValueOf(ply, candidate, value - 1, high, saved);
}

double RoundedValueOf(int ply, const Candidate& candidate, int value, double least,
                      const PlySave& saved) {
    const double gain = candidate.Value / Discount;
    ApplyMoveQuiet(ActionOf(candidate));
    const double answer = RoundedValue(ply + 1, Discounted(candidate.Value) - value, gain, least);
    saved.Restore();
    return gain - answer;
}

double HopelessValueOf(const Candidate& candidate, const PlySave& saved) {
    assert(Depth >= 3);
    const double gain = candidate.Value / Discount;
    ApplyMoveQuiet(ActionOf(candidate));
    const PlySave answered;
    CandidateSet set;
    BeginCandidates(set);
    GenerateBest(set);
    const Beam beam = KeepBeam(set, BeamWidthAt(2));
    double answer = NoScore;
    int best = NoUnits;
    for (std::size_t n = 0; n < beam.Count && gain - answer >= NoScore; ++n) {
        const Candidate& reply = beam.Candidates[n];
        const int value = ValueOf(2, reply, best - 1, Infinity, answered);
        if (value < best) continue;
        best = value;
        answer = std::max(answer, RoundedValueOf(2, reply, value, answer, answered));
    }
    saved.Restore();
    return gain - answer;
}

}  // namespace brastel
