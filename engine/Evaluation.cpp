#include "engine/Evaluation.h"

#include "core/WinTest.h"
#include "engine/EvaluationTerms.h"
#include "engine/PlySave.h"

namespace brastel {

namespace {

// ---- Terms of the sum, each as the side to move sees it ----

bool LeavesCarrierAtGoal(const Action& move) {
    const int enemy = -Pos.SideToMove;
    for (const Int16 ring : Pos.RingSquare) {
        // Only the first such carrier counts.
        if (Pos.Board[ring] == enemy && IsGoalFront(enemy, ring)) return move.Destination != ring;
    }
    return false;
}

bool ConcernsGoalFront(const Action& move) {
    const int side = Pos.SideToMove;
    return IsGoalFront(side, move.Destination) &&
           (CarriesRing(side, move.Origin) || CarriesRing(-side, move.Destination));
}

int AnswerToCarrier(const Action& move) {
    const int side = Pos.SideToMove;
    const SideTerms& terms = TermsOf(side);
    for (const Int16 ring : Pos.RingSquare) {
        if (Pos.Board[ring] != -side || !terms.AdvancedCarrier.Holds(ring)) continue;
        const bool isAnswer = AnswersCarrier(side, ring, move.Destination);
        return terms.AnswerOrigins.Holds(move.Origin) && isAnswer ? Weight::CarrierAnswered : 0;
    }
    return 0;
}

int CrowdingAroundCarrier() {
    const int side = Pos.SideToMove;
    const SideTerms& terms = TermsOf(side);
    const bool isCarrierThere = std::ranges::any_of(Pos.RingSquare, [&](Int16 ring) {
        return Pos.Board[ring] == -side && terms.CrowdCarrier.Holds(ring);
    });
    if (!isCarrierThere) return 0;
    int surplus = 0;
    for (int square = terms.Crowd.First; square <= terms.Crowd.Last; ++square) {
        if (InCrowd(side, square)) surplus -= side * Pos.Board[square];
    }
    return surplus >= Weight::CrowdSurplus ? Weight::Crowd : 0;
}

int PreparedPasses(const Action& move) {
    return Weight::PassPrepared *
           static_cast<int>(std::ranges::count_if(Pos.RingSquare, [&](Int16 ring) {
               return Pos.Board[ring] == Pos.SideToMove &&
                      PreparesPass(Pos.SideToMove, ring, move.Destination);
           }));
}

bool LeavesCorner(const Action& move) {
    const int row = Row(move.Origin);
    return IsFieldCorner(move.Origin) && row == Row(GoalFront(Pos.SideToMove)) &&
           row - Row(move.Destination) == Pos.SideToMove;
}

/// Pieces of a side, as its cells hold it, beside a square.
int CountBeside(int side, int square) {
    return static_cast<int>(std::ranges::count_if(
        BesideOffsets, [&](int offset) { return Pos.Board[square + offset] == side; }));
}

int CarrierMove(const Action& move) {
    if (!IsRingSquare(move.Origin)) return 0;
    const int rows = Pos.SideToMove * (Row(move.Destination) - Row(move.Origin));
    int value = Weight::RowForward * rows;
    if (LeavesCorner(move)) value += Weight::CornerLeft;
    if (CountBeside(Pos.SideToMove, move.Destination) > 0) value += Weight::RingBesideFriend;
    if (IsFieldCorner(move.Destination)) value += Weight::CornerEntered;
    return value;
}

bool IsNearRing(const std::array<int, 4>& offsets, int destination) {
    return IsNear(offsets, Pos.RingSquare[0], destination) ||
           IsNear(offsets, Pos.RingSquare[1], destination);
}

int EveryMove(const Action& move) {
    const int destination = move.Destination;
    const int cell = Pos.Board[destination];
    int value = Pos.SideToMove * Weight::PieceOutside * Pos.OutsideBalance;
    if (cell == -Pos.SideToMove) value += Weight::Hit;
    if (IsRingSquare(destination)) value += Weight::RingTaken;
    if (IsNearRing(BesideOffsets, destination)) value += Weight::BesideRing;
    if (IsNearRing(DiagonalOffsets, destination)) value += Weight::DiagonalToRing;
    if (cell != Empty) value += Weight::Contact * CountBeside(cell, destination);
    return value + Weight::GoalColumn *
                       (IsGoalColumn(Column(destination)) - IsGoalColumn(Column(move.Origin)));
}

// ---- Carriers in front of a goal ----

/// True if a friend covers a carrier on one of the two inner goal front squares: it stands beside
/// or behind the carrier, ready to hit back.
bool IsInnerCovered(int side, int square) {
    const auto& board = Pos.Board;
    const int forward = Forward(side);
    return board[square + Left] + board[square + Right] == side ||
           (board[square - forward] == side && board[square + forward] == Empty);
}

/// The same on one of the two outer ones; `out` points away from the goal.
bool IsOuterCovered(int side, int square, int out) {
    const auto& board = Pos.Board;
    const int front = square + Forward(side);
    const int behind = square - Forward(side);
    const int corner = square + out;
    const int beyond = corner + out;
    if (board[behind] == side && board[front] == Empty && board[front + out] != -side) {
        return !(board[beyond] == -side && board[corner] == -side);
    }
    if (board[corner] == side) {
        return board[square - out] == Empty && board[front - out] != -side;
    }
    return board[corner] == Empty && board[square - out] == side && board[front + out] != -side &&
           board[beyond] != -side;
}

/// Looks at the first carrier of the side, the inner squares before the outer ones.
bool IsFirstCarrierCovered(int side) {
    const int first = GoalFront(side);
    if (CarriesRing(side, first + 1)) return IsInnerCovered(side, first + 1);
    if (CarriesRing(side, first + 2)) return IsInnerCovered(side, first + 2);
    if (CarriesRing(side, first)) return IsOuterCovered(side, first, Left);
    return CarriesRing(side, first + 3) && IsOuterCovered(side, first + 3, Right);
}

/// As Blue sees it. An unstoppable carrier counts before a covered one, and Blue's before Red's.
Int16 GoalFrontVerdict() {
    if (HasUnstoppableCarrier(Blue)) return WinValue;
    if (HasUnstoppableCarrier(Red)) return LossValue;
    if (IsFirstCarrierCovered(Blue)) return CoveredValue;
    return IsFirstCarrierCovered(Red) ? ToInt16(-CoveredValue) : Int16{0};
}

}  // namespace

Int16 ScoreMove(const Action& move) {
    if (move.Destination == GoalSquare(Pos.SideToMove)) return WinValue;
    if (LeavesCarrierAtGoal(move)) return LossValue;
    if (ConcernsGoalFront(move)) {
        const int verdict = Pos.SideToMove * GoalFrontCheck(move);
        if (verdict != 0) return ToInt16(verdict);
    }
    return ToInt16(AnswerToCarrier(move) + CrowdingAroundCarrier() + PreparedPasses(move) +
                   CarrierMove(move) + EveryMove(move));
}

Int16 GoalFrontCheck(const Action& move) {
    const PlySave saved;
    ApplyMoveQuiet(move);
    const Int16 verdict = GoalFrontVerdict();
    saved.Restore();
    return verdict;
}

}  // namespace brastel
