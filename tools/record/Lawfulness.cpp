#include "tools/record/Lawfulness.h"

#include "core/Opening.h"
#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "play/Refusal.h"

namespace brastel {

namespace {

// ---- What may be played ----

bool IsCandidate(int from, int to) {
    GenerateMoves(1);
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        if (OriginOf(MoveList[1][n]) != from) continue;
        if (!BothRingsPlaced() || DestinationOf(MoveList[1][n]) == to) return true;
    }
    return false;
}

bool MayPass() {
    GenerateMoves(SearchPly);
    return ChoosePlayable() == 0;
}

// ---- Ring placements ----

std::string_view BrokenPlacementRule(int from, int to) {
    const int side = IsPlacingRing(Red) ? Red : Blue;
    const Piece piece = PieceOn(from);
    const bool wasSetUp = (side == Red ? RedStart : BlueStart)[0] == from;
    const bool mayTakeRing = piece.Index <= LastRingPiece || wasSetUp;
    if ((piece.Side == side && mayTakeRing) || IsCandidate(from, to)) return {};
    if (from == NoSquare) return "the ring must be given to a piece first";
    return WhyRingRefused(from);
}

}  // namespace

std::string_view BrokenRule(int from, int to) {
    if (!BothRingsPlaced()) return BrokenPlacementRule(from, to);
    if (from == NoSquare && to == NoSquare)
        return MayPass() ? "" : "a side that can move may not pass";
    if (IsAccepted(from, to)) return {};
    const bool isCandidate = IsCandidate(from, to);
    if (isCandidate && ActionFits(from, to)) return {};
    if (isCandidate) return "an opponent waits in the goal";
    return WhyRefused(from, to);
}

}  // namespace brastel
