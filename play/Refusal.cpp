#include "play/Refusal.h"

#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PlainMove.h"
#include "core/WinTest.h"
#include "play/GameRecord.h"

#include <cstdlib>
#include <span>

namespace brastel {

namespace {

/// How far an action goes.
int Columns(const Action& e) { return std::abs(Column(e.Destination) - Column(e.Origin)); }
int Rows(const Action& e) { return std::abs(Row(e.Destination) - Row(e.Origin)); }

struct Rule {
    bool (*IsBroken)(const Action&);
    std::string_view Words;
};

bool IsCarrier(const Action& action) { return IsRingSquare(action.Origin); }
bool GoesOut(const Action& action) { return !InField(action.Destination); }
bool IsOutside(const Action& action) { return !InField(action.Origin); }

bool IsWayBlocked(const Action& action) {
    return !AreEmpty(GuardsOf(Column(action.Destination) - Column(action.Origin),
                              Row(action.Destination) - Row(action.Origin)),
                     action.Origin);
}

bool IsColumnBlocked(const Action& action) {
    if (Columns(action) != 0) return false;
    const int step = action.Destination > action.Origin ? Down : Up;
    for (int square = action.Origin + step; square != action.Destination; square += step) {
        if (Pos.Board[square] != Empty) return true;
    }
    return false;
}

bool PushesBack(const Action& action) {
    return CheckHit(PieceOn(action.Origin), PieceOn(action.Destination)) == HitVerdict::PushBack;
}

bool Always(const Action&) { return true; }

constexpr std::array PieceRules{
    Rule{[](const Action& e) { return !IsOnBoard(e.Origin) || !IsOnBoard(e.Destination); },
         "there is no such square"},
    Rule{[](const Action& e) { return Pos.Board[e.Origin] == Empty; }, "no piece stands there"},
    Rule{[](const Action& e) { return Pos.Board[e.Origin] != Pos.SideToMove; },
         "the piece belongs to the other side"},
    Rule{[](const Action& e) { return e.Origin == e.Destination; }, "the piece stays where it is"},
};

constexpr std::array RingPassRules{
    Rule{[](const Action& e) { return !IsCarrier(e); },
         "a friendly piece stands there, and there is no ring to pass to it"},
    Rule{GoesOut, "a ring cannot be passed to a piece outside"},
    Rule{[](const Action& e) { return IsRingSquare(e.Destination); },
         "the receiver carries a ring itself"},
    Rule{Always, "a ring is passed to a neighbour on a diagonal, or a knight's move away"},
};

constexpr std::array HitRules{
    Rule{IsOutside, "the piece waits outside"},
    Rule{GoesOut, "a piece outside cannot be pushed"},
    Rule{IsCarrier, "a ring carrier cannot push"},
    Rule{PushesBack, "the piece that has just hit this one cannot be pushed back"},
    Rule{[](const Action& e) { return Columns(e) != 0 && Rows(e) != 0; },
         "pieces push along rows and columns"},
    Rule{[](const Action& e) { return Columns(e) + Rows(e) > 2; },
         "too far: pieces push from one or two squares away"},
    Rule{IsWayBlocked, "the way is blocked"},
    Rule{[](const Action& e) { return Columns(e) + Rows(e) == 2 && IsRingSquare(e.Destination); },
         "a ring carrier can only be pushed from the next square"},
    Rule{Always, "no room behind: two pieces in a row cannot be pushed"},
};

constexpr std::array MoveRules{
    Rule{IsOutside, "the piece waits outside and comes back by itself"},
    Rule{[](const Action& e) { return e.Destination == GoalSquare(Pos.SideToMove); },
         "only the computer's carriers enter the goal; a carrier wins right before it"},
    Rule{GoesOut, "pieces do not leave the field by themselves"},
    Rule{IsWayBlocked, "the way is blocked"},
    Rule{IsColumnBlocked, "the way is blocked"},
    Rule{[](const Action& e) { return Columns(e) == 0; },
         "too far: a slide along the column ends before a friendly piece"},
    Rule{Always, "too far: pieces go one or two squares"},
};

std::string_view FirstBroken(std::span<const Rule> rules, const Action& action) {
    for (const auto& [isBroken, words] : rules) {
        if (isBroken(action)) return words;
    }
    return {};
}

std::string_view BrokenRuleOfKind(const Action& action) {
    const Int16 target = Pos.Board[action.Destination];
    if (target == Empty) return FirstBroken(MoveRules, action);
    if (target == Pos.SideToMove) return FirstBroken(RingPassRules, action);
    return FirstBroken(HitRules, action);
}

}  // namespace

std::string_view WhyRefused(const Action& action) {
    if (!BothRingsPlaced()) return "the rings must be placed first";
    if (IsRecordFull()) return "the record is full";
    const std::string_view broken = FirstBroken(PieceRules, action);
    return broken.empty() ? BrokenRuleOfKind(action) : broken;
}

std::string_view WhyRingRefused(int square) {
    if (BothRingsPlaced()) return "both rings are placed already";
    if (!IsOnBoard(square)) return "there is no such square";
    const Piece piece = PieceOn(square);
    if (!piece) return "no piece stands there to take the ring";
    return IsPlacingRing(piece.Side) ? "only pieces 1 to 8 may take the ring"
                                     : "the piece belongs to the other side";
}

}  // namespace brastel
