#include "engine/Search.h"

#include "core/Position.h"
#include "core/QuietMove.h"
#include "engine/Candidates.h"
#include "engine/Evaluation.h"
#include "engine/Random.h"

namespace brastel {

Int16 SearchPly = 1;
Int16 BeamWidth = 32;
Int16 BeamShrink = 7;

void ResetBeam() {
    BeamWidth = 32;
    BeamShrink = 7;
}

namespace {

Int16 Depth = 1;

/// A win one ply nearer counts this much more.
constexpr int WinBonusPerPly = 1000;

bool IsWin(double value) { return value > WinValue - 1; }

void NarrowBeam() { BeamWidth = ToInt16(BeamWidth - BeamShrink--); }
void WidenBeam() { BeamWidth = ToInt16(BeamWidth + ++BeamShrink); }

void SortAndCut(int ply) {
    SortCandidates(ply);
    CandidateCount[ply] = std::min(CandidateCount[ply], BeamWidth);
}

void RaiseBest(int ply, double value) { BestScore[ply] = std::max(BestScore[ply], value); }

void SearchReplies(int parent);

/// Plays candidate n of the ply, lets the opponent answer, takes it back and values it.
void TryCandidate(int ply, int n, const Position& saved) {
    const MoveCode code = MoveList[ply][n];
    ApplyMoveQuiet(OriginOf(code), DestinationOf(code));
    SearchPly = ToInt16(ply + 1);
    SearchReplies(n);
    SearchPly = ToInt16(ply);
    Pos = saved;
    MoveScores[ply][n] = MoveScores[ply][n] / Discount - BestScore[ply + 1];
    RaiseBest(ply, MoveScores[ply][n]);
}

void SearchInnerPly(int ply, int parent) {
    GenerateMoves(ply);
    SortAndCut(ply);
    const Position saved = Pos;
    BestScore[ply] = NoScore;
    for (int n = 1; n <= CandidateCount[ply]; ++n) {
        const double value = MoveScores[ply][n];
        if (IsWin(value)) {
            if (value > BestScore[ply]) BestScore[ply] = value + (Depth - ply) * WinBonusPerPly;
            return;
        }
        TryCandidate(ply, n, saved);
        if (IsParentRefuted(ply, parent)) return;
    }
}

/// Leaves in BestScore of the current ply what the side to move can reach against the candidate
/// `parent` of the ply above. The deepest ply looks at immediate values only.
void SearchReplies(int parent) {
    const int ply = SearchPly;
    if (ply < Depth) {
        NarrowBeam();
        SearchInnerPly(ply, parent);
        WidenBeam();
    } else {
        GenerateBestReply(ply, parent);
    }
}

/// A winning candidate ends the search: sorted first, it and all others keep their immediate
/// values.
void SearchRoot() {
    constexpr int Root = 1;
    SortAndCut(Root);
    const Position saved = Pos;
    BestScore[Root] = NoScore;
    for (int n = 1; n <= CandidateCount[Root]; ++n) {
        if (IsWin(MoveScores[Root][n])) return RaiseBest(Root, MoveScores[Root][n]);
        TryCandidate(Root, n, saved);
    }
}

/// The best of row 1. Each candidate that reaches the best so far tosses a coin, the first one to
/// do so included, so the last of k equals is taken with probability 1/2, the one before with 1/4.
Int16 SelectFromRoot() {
    double best = -10000000.0;
    int chosen = 0;
    for (int n = 1; n <= CandidateCount[1] && MoveList[1][n] != 0; ++n) {
        const double value = MoveScores[1][n];
        if (value < best) continue;
        const bool isBetter = value > best;
        best = value;
        const bool wonToss = RandomBelow(2) == 1;
        if (isBetter || wonToss) chosen = n;
    }
    return ToInt16(chosen);
}

}  // namespace

Int16 ChooseCandidate(Int16 depth) {
    Depth = depth;
    SearchPly = 1;
    GenerateMoves(SearchPly);
    if (Depth > 1) SearchRoot();
    return SelectFromRoot();
}

}  // namespace brastel
