#include "tools/record/RuleCheck.h"

#include "core/Opening.h"
#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "play/Refusal.h"

namespace brastel {

namespace {

// ---- What may be played ----

bool IsCandidate(const Action& entry) {
    GenerateMoves(1);
    const Action listed = BothRingsPlaced() ? entry : Action{entry.Origin};
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        if (DecodeMove(MoveList[1][n]) == listed) return true;
    }
    return false;
}

// ---- Ring placements ----

std::string_view BrokenPlacementRule(const Action& entry) {
    const int from = entry.Origin;
    const int side = IsPlacingRing(Red) ? Red : Blue;
    const Piece piece = PieceOn(from);
    const bool wasSetUp = (side == Red ? RedStart : BlueStart)[0] == from;
    const bool mayTakeRing = piece.Index <= LastRingPiece || wasSetUp;
    if ((piece.Side == side && mayTakeRing) || IsCandidate(entry)) return {};
    if (from == NoSquare) return "the ring must be given to a piece first";
    return WhyRingRefused(from);
}

}  // namespace

std::string_view BrokenRule(const Action& entry) {
    if (!BothRingsPlaced()) return BrokenPlacementRule(entry);
    if (entry == NullMove) return MustPass() ? "" : "a side that can move may not pass";
    if (IsAccepted(entry)) return {};
    const bool isCandidate = IsCandidate(entry);
    if (isCandidate && ActionFits(entry)) return {};
    if (isCandidate) return "an opponent waits in the goal";
    return WhyRefused(entry);
}

}  // namespace brastel
