#include "engine/Evaluation.h"

#include "core/Position.h"
#include "core/QuietMove.h"
#include "core/WinTest.h"
#include "engine/EvaluationTerms.h"

#include <span>

namespace brastel {

namespace {

constexpr std::array<int, 4> BesideOffsets{Right, Left, Down, Up};
constexpr std::array<int, 4> DiagonalOffsets{Up + Left, Up + Right, Down + Left, Down + Right};

bool IsNearRing(int square, std::span<const int> offsets) {
    return std::ranges::any_of(offsets, [square](int o) { return IsRingSquare(square - o); });
}

// ---- Terms of the sum, each as the side to move sees it ----

struct Move {
    int Origin;
    int Destination;
};

bool LeavesCarrierAtGoal(const Move& move) {
    const int enemy = -Pos.SideToMove;
    for (const Int16 ring : Pos.RingSquare) {
        // The first such carrier decides; the other ring is not looked at.
        if (Pos.Board[ring] == enemy && IsGoalFront(enemy, ring)) return move.Destination != ring;
    }
    return false;
}

bool ConcernsGoalFront(const Move& move) {
    const int side = Pos.SideToMove;
    return IsGoalFront(side, move.Destination) &&
           (CarriesRing(side, move.Origin) || CarriesRing(-side, move.Destination));
}

int AnswerToCarrier(const Move& move) {
    const int side = Pos.SideToMove;
    const SideTerms& terms = TermsOf(side);
    for (const Int16 ring : Pos.RingSquare) {
        if (Pos.Board[ring] != -side || !terms.AdvancedCarrier.Holds(ring)) continue;
        const bool isAhead = (Line(move.Destination) - Line(ring)) * side <= 0;
        return terms.AnswerOrigins.Holds(move.Origin) && isAhead ? 4 : 0;
    }
    return 0;
}

/// Enemy pieces less own ones in the four field rows from the given square down.
int EnemySurplus(int firstSquare) {
    int sum = 0;
    for (int row = 0; row < CrowdRows; ++row) {
        for (int column = 0; column < 6; ++column) {
            sum += Pos.Board[firstSquare + row * Down + column * Right];
        }
    }
    return -Pos.SideToMove * sum;
}

int CrowdingAroundCarrier() {
    const int enemy = -Pos.SideToMove;
    const SideTerms& terms = TermsOf(Pos.SideToMove);
    const bool isCarrierThere = std::ranges::any_of(Pos.RingSquare, [&](Int16 ring) {
        return Pos.Board[ring] == enemy && terms.CrowdCarrier.Holds(ring);
    });
    return isCarrierThere && EnemySurplus(terms.CrowdFirst) >= 2 ? -12 : 0;
}

int PreparedPasses(const Move& move) {
    const int ahead = 2 * Forward(Pos.SideToMove);
    int value = 0;
    for (const Int16 ring : Pos.RingSquare) {
        if (Pos.Board[ring] != Pos.SideToMove) continue;
        if (move.Destination == ring + ahead + Left || move.Destination == ring + ahead + Right) {
            ++value;
        }
    }
    return value;
}

/// A carrier leaves a corner along its own goal line's second row.
bool LeavesCorner(const Move& move) {
    const int origin = move.Origin;
    const int destination = move.Destination;
    const bool atBottom = (origin == 98 || origin == 103) && Pos.Board[origin] == Blue;
    const bool atTop = (origin == 10 || origin == 15) && Pos.Board[origin] == Red;
    return (atBottom && Row(destination) == 11) || (atTop && Row(destination) == 2);
}

int CarrierMove(const Move& move) {
    if (!IsRingSquare(move.Origin)) return 0;
    int value = Pos.SideToMove * 4 * (Line(move.Destination) - Line(move.Origin));
    if (LeavesCorner(move)) value += 5;
    if (std::ranges::any_of(BesideOffsets, [&](int offset) {
            return Pos.Board[move.Destination + offset] == Pos.SideToMove;
        })) {
        value += 1;
    }
    if (IsFieldCorner(move.Destination)) value -= 1;
    return value;
}

/// Pieces beside the destination that are of the same side as the piece on it.
int Contacts(int destination) {
    const int cell = Pos.Board[destination];
    return static_cast<int>(std::ranges::count_if(
        BesideOffsets, [&](int offset) { return cell * Pos.Board[destination + offset] == 1; }));
}

int EveryMove(const Move& move) {
    const int destination = move.Destination;
    int value = Pos.SideToMove * 3 * Pos.OutsideBalance;
    if (Pos.Board[destination] == -Pos.SideToMove) value += 2;
    if (IsRingSquare(destination)) value += 5;
    if (IsNearRing(destination, BesideOffsets)) value += 2;
    if (IsNearRing(destination, DiagonalOffsets)) value += 1;
    value += IsGoalColumn(Column(destination)) - IsGoalColumn(Column(move.Origin));
    return value + Contacts(destination);
}

// ---- Carriers in front of a goal ----

/// True if a friend beside or behind covers a carrier on one of the two inner goal front squares.
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

/// The last verdict that applies counts, so they are asked from the end.
Int16 JudgeGoalFronts() {
    if (HasUnstoppableCarrier(Blue)) return 10000;
    if (HasUnstoppableCarrier(Red)) return -10000;
    if (IsFirstCarrierCovered(Blue)) return 9000;
    return IsFirstCarrierCovered(Red) ? -9000 : 0;
}

}  // namespace

Int16 ScoreMove(int origin, int destination) {
    const Move move{origin, destination};
    if (destination == GoalSquare(Pos.SideToMove)) return WinValue;
    if (LeavesCarrierAtGoal(move)) return LossValue;
    if (ConcernsGoalFront(move)) {
        const int verdict = Pos.SideToMove * GoalFrontCheck(origin, destination);
        if (verdict != 0) return ToInt16(verdict);
    }
    return ToInt16(AnswerToCarrier(move) + CrowdingAroundCarrier() + PreparedPasses(move) +
                   CarrierMove(move) + EveryMove(move));
}

Int16 GoalFrontCheck(int origin, int destination) {
    const PlySave saved;
    ApplyMoveQuiet({origin, destination});
    const Int16 verdict = JudgeGoalFronts();
    saved.Restore();
    return verdict;
}

}  // namespace brastel
