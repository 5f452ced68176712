#include "core/PiecesOutside.h"

#include <bit>

namespace brastel {

constexpr std::array<ReturnCell, ReturnCellCount> ReturnCells{{
    // Rows 0 and 13, corners first.
    {2, 10, {11, 18}},
    {7, 15, {14, 23}},
    {3, 11, {10, 12, 19}},
    {4, 12, {11, 13, 20}},
    {5, 13, {12, 14, 21}},
    {6, 14, {13, 15, 22}},
    {106, 98, {99, 90}},
    {111, 103, {102, 95}},
    {107, 99, {98, 100, 91}},
    {108, 100, {99, 101, 92}},
    {109, 101, {100, 102, 93}},
    {110, 102, {101, 103, 94}},
    // Column 0, corners first.
    {9, 10, {11, 18}},
    {97, 98, {99, 90}},
    {17, 18, {10, 26, 19}},
    {25, 26, {18, 34, 27}},
    {33, 34, {26, 42, 35}},
    {41, 42, {34, 50, 43}},
    {49, 50, {42, 58, 51}},
    {57, 58, {50, 66, 59}},
    {65, 66, {58, 74, 67}},
    {73, 74, {66, 82, 75}},
    {81, 82, {74, 90, 83}},
    {89, 90, {82, 98, 91}},
    // Column 7, corners first.
    {16, 15, {14, 23}},
    {104, 103, {102, 95}},
    {24, 23, {15, 31, 22}},
    {32, 31, {23, 39, 30}},
    {40, 39, {31, 47, 38}},
    {48, 47, {39, 55, 46}},
    {56, 55, {47, 63, 54}},
    {64, 63, {55, 71, 62}},
    {72, 71, {63, 79, 70}},
    {80, 79, {71, 87, 78}},
    {88, 87, {79, 95, 86}},
    {96, 95, {87, 103, 94}},
}};

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

/// Moves the piece in from its cell. Its board cell follows after the whole pass, so that pieces of
/// one pass do not stand in one another's way.
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
