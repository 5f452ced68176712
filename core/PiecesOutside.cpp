#include "core/PiecesOutside.h"

#include "core/ReturnCells.h"

#include <bit>

namespace brastel {

namespace {

/// A set of return cells: bit n is the cell at place n of the table.
using CellSet = std::uint64_t;

constexpr CellSet AllCells = (CellSet{1} << ReturnCellCount) - 1;

constexpr bool Watches(const ReturnCell& cell, int square) {
    return cell.Return == square || cell.Guards[0] == square || cell.Guards[1] == square ||
           cell.Guards[2] == square;
}

constexpr auto CellsNearSquares = [] {
    Table<CellSet, FirstSquare, LastSquare> near;
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        for (std::size_t slot = 0; slot < ReturnCells.size(); ++slot) {
            if (Watches(ReturnCells[slot], square)) near[square] |= CellSet{1} << slot;
        }
    }
    return near;
}();

CellSet CellsNear(int square) { return IsOnBoard(square) ? CellsNearSquares[square] : 0; }

/// The pieces that come back in one pass.
struct Returns {
    struct Entry {
        Int16 Side;
        Int16 Square;
    };
    std::array<Entry, ReturnCellCount> Entries;
    int Count = 0;

    bool Takes(int square) const {
        return std::any_of(Entries.begin(), Entries.begin() + Count,
                           [square](const Entry& entry) { return entry.Square == square; });
    }
};

bool IsGuardedAgainst(int side, const ReturnCell& cell) {
    return std::ranges::any_of(cell.Guards,
                               [side](int guard) { return Pos.Board[guard] == -side; });
}

/// Moves the piece in from its cell. Its new board cell is written after the whole pass, so that
/// pieces of one pass do not block each other.
void ServeCell(const ReturnCell& cell, Returns& returns) {
    const Int16 side = Pos.Board[cell.Cell];
    if (side == Empty || Pos.Board[cell.Return] != Empty) return;
    if (IsGuardedAgainst(side, cell) || returns.Takes(cell.Return)) return;
    SquaresOf(side)[FindAt(side, cell.Cell)] = cell.Return;
    Pos.Board[cell.Cell] = Empty;
    returns.Entries[static_cast<std::size_t>(returns.Count++)] = {side, cell.Return};
}

void ReturnPass(CellSet cells) {
    Returns returns;
    for (; cells != 0; cells &= cells - 1) {
        ServeCell(ReturnCells[static_cast<std::size_t>(std::countr_zero(cells))], returns);
    }
    for (int i = 0; i < returns.Count; ++i) {
        const auto& [side, square] = returns.Entries[static_cast<std::size_t>(i)];
        Pos.Board[square] = side;
        Pos.OutsideBalance = ToInt16(Pos.OutsideBalance + side);
    }
}

}  // namespace

int ReturnSquareOf(int cell) {
    const auto found = std::ranges::find(ReturnCells, cell, &ReturnCell::Cell);
    return found != ReturnCells.end() ? found->Return : NoSquare;
}

void ReturnOutsidePieces() { ReturnPass(AllCells); }

void ReturnOutsideNear(int square, int otherSquare) {
    ReturnPass(CellsNear(square) | CellsNear(otherSquare));
}

}  // namespace brastel
