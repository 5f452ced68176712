#include "play/Words.h"

namespace brastel {

namespace {

// ---- Places ----

/// A goal belongs to its attacker, as in "the first player to carry a ring into his goal".
std::string GoalInWords(int square) {
    return SideInWords(Row(square) == 0 ? Red : Blue) + "'s goal";
}

std::string PlacePrefix(int square) {
    if (InField(square)) return {};
    return (IsGoalMouth(square) ? GoalInWords(square) : "outside") + ", ";
}

std::string On(int square) {
    return IsGoalMouth(square) ? "in " + GoalInWords(square) : "on " + SquareInWords(square);
}

/// The end of a move from another square.
std::string To(int from, int to) {
    if (!IsOnBoard(to)) return "off the board";
    if (IsGoalMouth(to)) return "into " + GoalInWords(to);
    const bool goesOut = InField(from) && !InField(to);
    return (goesOut ? "out to " : "to ") + SquareInWords(to);
}

// ---- What happened between two positions ----

/// A position and a later one.
class Change {
public:
    Change(const Position& before, const Position& after)
        : Before(before),
          After(after),
          Mover(before.SideToMove),
          IsAction(after.SideToMove == -Mover && (after.MoveCount == before.MoveCount ||
                                                  after.MoveCount == before.MoveCount + 1)) {}

    std::string InWords() {
        for (const int side : {+Mover, -Mover}) AddMoves(side);
        for (std::size_t ring = 0; ring < RingCount; ++ring) AddRing(ring);
        for (const int side : {+Mover, -Mover}) AddReturns(side);
        return Text.empty() ? StandstillInWords() : Text;
    }

private:
    struct Way {
        int From;
        int To;
    };
    Way WayOf(Piece piece) const { return {SquareOf(piece, Before), SquareOf(piece, After)}; }

    static bool IsReturn(Way way) {
        return way.From != NoSquare && !InField(way.From) && InField(way.To);
    }

    void Add(const std::string& words) { Text += (Text.empty() ? "" : "; ") + words; }

    template <typename Operation>
    void ForEachMoved(int side, Operation operation) {
        const int count = std::max(PieceCount(side, Before), PieceCount(side, After));
        for (int i = 1; i <= count; ++i) {
            const Piece piece{ToInt16(side), ToInt16(i)};
            const Way way = WayOf(piece);
            if (way.From != way.To) operation(piece, way);
        }
    }

    // ---- Moves and pushes ----

    void AddMoves(int side) {
        ForEachMoved(side, [this](Piece piece, Way way) {
            if (!IsReturn(way) && piece != Pushed) Add(MoveInWords(piece, way));
        });
    }

    std::string MoveInWords(Piece piece, Way way) {
        const std::string name = PieceInWords(piece);
        if (way.From == NoSquare) return name + ' ' + On(way.To);
        if (way.To == NoSquare) return name + " leaves the board";
        return name + " from " + SquareInWords(way.From) + ' ' + To(way.From, way.To) +
               PushInWords(piece, way);
    }

    /// The piece that this one pushed with the last hit, if it came to its square with that hit.
    Piece PushedBy(Piece piece, Way way) const {
        if (!IsAction || piece.Side != Mover || piece.Index != After.LastHit[0]) return {};
        const Piece other = PieceOn(way.To, Before);
        return other.Side == -Mover && other.Index == After.LastHit[1] ? other : Piece{};
    }

    std::string PushInWords(Piece piece, Way way) {
        const Piece other = PushedBy(piece, way);
        const int landing = WayOf(other).To;
        if (!other || landing == way.To || landing == NoSquare) return {};
        Pushed = other;
        std::string words = ", pushes " + PieceInWords(other) + ' ' + To(way.To, landing);
        for (std::size_t ring = 0; ring < RingCount; ++ring) {
            if (!HasTaken(ring, way.To)) continue;
            RingDone[ring] = true;
            words += " and takes its ring";
        }
        return words;
    }

    /// A ring stays on its square when its carrier is pushed off it.
    bool HasTaken(std::size_t ring, int square) const {
        return Before.RingSquare[ring] == square && After.RingSquare[ring] == square;
    }

    // ---- Rings ----

    void AddRing(std::size_t ring) {
        if (RingDone[ring]) return;
        const Way way{Before.RingSquare[ring], After.RingSquare[ring]};
        const Piece from = PieceOn(way.From, Before);
        const Piece to = PieceOn(way.To, After);
        if (IsPlacement(ring) && to) return Add(TakesInWords(to, way.To));
        if (from != to || (!to && way.From != way.To)) Add(RingInWords(from, to, way));
    }

    /// The ring can be laid just where it lies.
    bool IsPlacement(std::size_t ring) const {
        const int entry = 1 + static_cast<int>(ring);
        return IsAction && Before.MoveCount == entry && After.MoveCount == entry + 1;
    }

    static std::string TakesInWords(Piece piece, int square) {
        return PieceInWords(piece) + " takes the ring " + On(square);
    }

    std::string RingInWords(Piece from, Piece to, Way way) const {
        const std::string receiver = PieceInWords(to) + ' ' + On(way.To);
        const std::string ring = from ? "the ring of " + PieceInWords(from) : "a ring";
        if (IsAction && to && !from) return TakesInWords(to, way.To);
        if (IsAction && from.Side == Mover && to.Side == Mover) {
            return PieceInWords(from) + " passes the ring to " + receiver;
        }
        if (to) return ring + " goes to " + receiver;
        if (!from) return ring + " lies " + On(way.To);
        return IsAction ? PieceInWords(from) + " leaves the ring " + On(way.To)
                        : ring + " goes " + To(way.From, way.To);
    }

    // ---- Pieces coming back ----

    void AddReturns(int side) {
        ForEachMoved(side, [this](Piece piece, Way way) {
            if (IsReturn(way)) Add(PieceInWords(piece) + " comes back " + On(way.To));
        });
    }

    std::string StandstillInWords() const {
        if (IsAction) return SideInWords(Mover) + " passes";
        return After.SideToMove != Mover ? TurnInWords(After.SideToMove) : "nothing changed";
    }

    const Position& Before;
    const Position& After;
    const Int16 Mover;
    /// True if the side to move made one action and nothing else happened.
    const bool IsAction;
    Piece Pushed;
    std::array<bool, RingCount> RingDone{};
    std::string Text;
};

}  // namespace

std::string SideInWords(int side) { return side == Red ? "Red" : "Blue"; }

std::string TurnInWords(int side) { return SideInWords(side) + " to move"; }

std::string SquareInWords(int square) {
    if (!IsOnBoard(square)) return "off the board";
    return "row " + std::to_string(Row(square) + 1) + ", column " +
           std::to_string(Column(square) + 1);
}

std::string PieceInWords(Piece piece) {
    if (!piece) return "no piece";
    return SideInWords(piece.Side) + " piece " + std::to_string(piece.Index);
}

std::string ContentInWords(int square) {
    if (!IsOnBoard(square)) return SquareInWords(square);
    const Piece piece = PieceOn(square);
    const auto rings = std::ranges::count(Pos.RingSquare, square);
    std::string content = piece ? PieceInWords(piece) : rings == 0 ? "empty" : "";
    if (piece && rings > 0) content += ", carries ";
    if (rings > 0) content += rings == 1 ? "a ring" : "both rings";
    return PlacePrefix(square) + content;
}

std::string SquareWithContent(int square) {
    if (!IsOnBoard(square)) return SquareInWords(square);
    return SquareInWords(square) + ": " + ContentInWords(square);
}

std::string ChangesInWords(const Position& before, const Position& after) {
    return Change(before, after).InWords();
}

}  // namespace brastel
