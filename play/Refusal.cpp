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

struct Action {
    int From;
    int To;

    int Columns() const { return std::abs(Column(To) - Column(From)); }
    int Rows() const { return std::abs(Row(To) - Row(From)); }
    bool IsStraight() const { return Columns() == 0 || Rows() == 0; }
};

struct Rule {
    bool (*IsBroken)(const Action&);
    std::string_view Words;
};

bool IsCarrier(const Action& action) { return IsRingSquare(action.From); }
bool GoesOut(const Action& action) { return !InField(action.To); }
bool IsOutside(const Action& action) { return !InField(action.From); }

bool IsWayBlocked(const Action& action) {
    return !AreEmpty(
        GuardsOf(Column(action.To) - Column(action.From), Row(action.To) - Row(action.From)),
        action.From);
}

bool IsColumnBlocked(const Action& action) {
    if (action.Columns() != 0) return false;
    const int step = action.To > action.From ? Down : Up;
    for (int square = action.From + step; square != action.To; square += step) {
        if (Pos.Board[square] != Empty) return true;
    }
    return false;
}

bool PushesBack(const Action& action) {
    return CheckHit(PieceOn(action.From), PieceOn(action.To)) == HitVerdict::PushBack;
}

bool Always(const Action&) { return true; }

constexpr std::array PieceRules{
    Rule{[](const Action& e) { return !IsOnBoard(e.From) || !IsOnBoard(e.To); },
         "there is no such square"},
    Rule{[](const Action& e) { return Pos.Board[e.From] == Empty; }, "no piece stands there"},
    Rule{[](const Action& e) { return Pos.Board[e.From] != Pos.SideToMove; },
         "the piece belongs to the other side"},
    Rule{[](const Action& e) { return e.From == e.To; }, "the piece stays where it is"},
};

constexpr std::array RingPassRules{
    Rule{[](const Action& e) { return !IsCarrier(e); },
         "a friendly piece stands there, and there is no ring to pass to it"},
    Rule{GoesOut, "a ring cannot be passed to a piece outside"},
    Rule{[](const Action& e) { return IsRingSquare(e.To); }, "the receiver carries a ring itself"},
    Rule{Always, "a ring is passed to a neighbour on a diagonal, or a knight's move away"},
};

constexpr std::array HitRules{
    Rule{IsOutside, "the piece waits outside"},
    Rule{GoesOut, "a piece outside cannot be pushed"},
    Rule{IsCarrier, "a ring carrier cannot push"},
    Rule{PushesBack, "the piece that has just hit this one cannot be pushed back"},
    Rule{[](const Action& e) { return !e.IsStraight(); }, "pieces push along rows and columns"},
    Rule{[](const Action& e) { return e.Columns() + e.Rows() > 2; },
         "too far: pieces push from one or two squares away"},
    Rule{IsWayBlocked, "the way is blocked"},
    Rule{[](const Action& e) { return e.Columns() + e.Rows() == 2 && IsRingSquare(e.To); },
         "a ring carrier can only be pushed from the next square"},
    Rule{Always, "no room behind: two pieces in a row cannot be pushed"},
};

constexpr std::array MoveRules{
    Rule{IsOutside, "the piece waits outside and comes back by itself"},
    Rule{[](const Action& e) { return e.To == GoalSquare(Pos.SideToMove); },
         "only the computer's carriers enter the goal; a carrier wins right before it"},
    Rule{GoesOut, "pieces do not leave the field by themselves"},
    Rule{IsWayBlocked, "the way is blocked"},
    Rule{IsColumnBlocked, "the way is blocked"},
    Rule{[](const Action& e) { return e.Columns() == 0; },
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
    const Int16 target = Pos.Board[action.To];
    if (target == Empty) return FirstBroken(MoveRules, action);
    if (target == Pos.SideToMove) return FirstBroken(RingPassRules, action);
    return FirstBroken(HitRules, action);
}

}  // namespace

std::string_view WhyRefused(int from, int to) {
    if (!BothRingsPlaced()) return "the rings must be placed first";
    if (IsRecordFull()) return "the record is full";
    const Action action{from, to};
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
