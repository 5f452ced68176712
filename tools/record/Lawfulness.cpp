#include "tools/record/Lawfulness.h"

#include "core/Hit.h"
#include "core/Opening.h"
#include "core/PlainMove.h"
#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "engine/Candidates.h"

#include <cstdlib>
#include <span>

namespace brastel {

namespace {

struct Entry {
    int From;
    int To;

    int Columns() const { return std::abs(Column(To) - Column(From)); }
    int Rows() const { return std::abs(Row(To) - Row(From)); }
    bool IsStraight() const { return Columns() == 0 || Rows() == 0; }
};

// ---- What may be played ----

bool IsCandidate(const Entry& entry) {
    GenerateMoves(1);
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        if (OriginOf(MoveList[1][n]) != entry.From) continue;
        if (!BothRingsPlaced() || DestinationOf(MoveList[1][n]) == entry.To) return true;
    }
    return false;
}

bool MayPass() {
    GenerateMoves(1);
    bool mayPass = CandidateCount[1] == 0;
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        mayPass |= !ActionFits(OriginOf(MoveList[1][n]), DestinationOf(MoveList[1][n]));
    }
    return mayPass;
}

// ---- Why not: of each kind of action the first rule that is broken ----

struct Rule {
    bool (*IsBroken)(const Entry&);
    std::string_view Words;
};

bool IsCarrier(const Entry& entry) { return IsRingSquare(entry.From); }
bool GoesOut(const Entry& entry) { return !InField(entry.To); }
bool IsOutside(const Entry& entry) { return !InField(entry.From); }

bool IsWayBlocked(const Entry& entry) {
    return !AreEmpty(
        GuardsOf(Column(entry.To) - Column(entry.From), Row(entry.To) - Row(entry.From)),
        entry.From);
}

bool IsColumnBlocked(const Entry& entry) {
    if (entry.Columns() != 0) return false;
    const int step = entry.To > entry.From ? Down : Up;
    for (int square = entry.From + step; square != entry.To; square += step) {
        if (Pos.Board[square] != Empty) return true;
    }
    return false;
}

bool PushesBack(const Entry& entry) {
    return CheckHit(PieceOn(entry.From), PieceOn(entry.To)) == HitVerdict::PushBack;
}

bool Always(const Entry&) { return true; }

constexpr std::array PieceRules{
    Rule{[](const Entry& e) { return !IsOnBoard(e.From) || !IsOnBoard(e.To); },
         "there is no such square"},
    Rule{[](const Entry& e) { return Pos.Board[e.From] == Empty; }, "no piece stands there"},
    Rule{[](const Entry& e) { return Pos.Board[e.From] != Pos.SideToMove; },
         "the piece belongs to the other side"},
    Rule{[](const Entry& e) { return e.From == e.To; }, "the piece stays where it is"},
};

constexpr std::array RingPassRules{
    Rule{[](const Entry& e) { return !IsCarrier(e); },
         "a friendly piece stands there, and there is no ring to pass to it"},
    Rule{GoesOut, "a ring cannot be passed to a piece outside"},
    Rule{[](const Entry& e) { return IsRingSquare(e.To); }, "the receiver carries a ring itself"},
    Rule{Always, "a ring is passed to a neighbour on a diagonal, or a knight's move away"},
};

constexpr std::array HitRules{
    Rule{IsOutside, "the piece waits outside"},
    Rule{GoesOut, "a piece outside cannot be pushed"},
    Rule{IsCarrier, "a ring carrier cannot push"},
    Rule{PushesBack, "the piece that has just hit this one cannot be pushed back"},
    Rule{[](const Entry& e) { return !e.IsStraight(); }, "pieces push along rows and columns"},
    Rule{[](const Entry& e) { return e.Columns() + e.Rows() > 2; },
         "too far: pieces push from one or two squares away"},
    Rule{IsWayBlocked, "the way is blocked"},
    Rule{[](const Entry& e) { return e.Columns() + e.Rows() == 2 && IsRingSquare(e.To); },
         "a ring carrier can only be pushed from the next square"},
    Rule{Always, "no room behind: two pieces in a row cannot be pushed"},
};

constexpr std::array MoveRules{
    Rule{IsOutside, "the piece waits outside and comes back by itself"},
    Rule{[](const Entry& e) { return GoesOut(e) && e.To == GoalSquare(Pos.SideToMove); },
         "only a ring carrier right before the goal may enter it"},
    Rule{GoesOut, "pieces do not leave the field by themselves"},
    Rule{IsWayBlocked, "the way is blocked"},
    Rule{IsColumnBlocked, "the way is blocked"},
    Rule{[](const Entry& e) { return e.Columns() == 0; },
         "too far: a slide along the column ends before a friendly piece"},
    Rule{Always, "too far: pieces go one or two squares"},
};

std::string_view FirstBroken(std::span<const Rule> rules, const Entry& entry) {
    for (const auto& [isBroken, words] : rules) {
        if (isBroken(entry)) return words;
    }
    return {};
}

std::string_view BrokenRuleOfKind(const Entry& entry) {
    const Int16 target = Pos.Board[entry.To];
    if (target == Empty) return FirstBroken(MoveRules, entry);
    if (target == Pos.SideToMove) return FirstBroken(RingPassRules, entry);
    return FirstBroken(HitRules, entry);
}

// ---- Ring placements ----

std::string_view BrokenPlacementRule(const Entry& entry) {
    const int side = IsPlacingRing(Red) ? Red : Blue;
    const Piece piece = PieceOn(entry.From);
    const bool isOwn = piece && piece.Side == side;
    const bool wasSetUp = (side == Red ? RedStart : BlueStart)[0] == entry.From;
    if (isOwn && (piece.Index <= LastRingPiece || wasSetUp)) return {};
    if (IsCandidate(entry)) return {};
    if (entry.From == NoSquare) return "the ring must be given to a piece first";
    if (!IsOnBoard(entry.From)) return "there is no such square";
    if (!piece) return "no piece stands there to take the ring";
    return isOwn ? "only pieces 1 to 8 may take the ring" : "the piece belongs to the other side";
}

}  // namespace

std::string_view BrokenRule(int from, int to) {
    const Entry entry{from, to};
    if (!BothRingsPlaced()) return BrokenPlacementRule(entry);
    if (from == NoSquare && to == NoSquare)
        return MayPass() ? "" : "a side that can move may not pass";
    if (IsAccepted(from, to)) return {};
    const bool isCandidate = IsCandidate(entry);
    if (isCandidate && ActionFits(from, to)) return {};
    if (isCandidate) return "an opponent waits in the goal";
    const std::string_view broken = FirstBroken(PieceRules, entry);
    return broken.empty() ? BrokenRuleOfKind(entry) : broken;
}

}  // namespace brastel
