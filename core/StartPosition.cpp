#include "core/StartPosition.h"

#include "core/Consistency.h"

namespace brastel {

StartTable RedStart;
StartTable BlueStart;

namespace {

struct Layout {
    Int16 Count;
    std::array<Int16, MaxPieces> RedSquares;
    std::array<Int16, MaxPieces> BlueSquares;
};

/// In piece index order, in which all searches over pieces go.
constexpr std::array<Layout, LayoutCount> Layouts{{
    {2, {68, 69}, {44, 45}},
    {4, {67, 68, 69, 70}, {43, 44, 45, 46}},
    {6, {67, 68, 69, 70, 28, 29}, {43, 44, 45, 46, 84, 85}},
    {8, {66, 67, 68, 69, 70, 71, 28, 29}, {42, 43, 44, 45, 46, 47, 84, 85}},
    {10, {66, 67, 68, 69, 70, 71, 74, 79, 28, 29}, {42, 43, 44, 45, 46, 47, 34, 39, 84, 85}},
    {12,
     {66, 67, 68, 69, 70, 71, 74, 79, 28, 29, 27, 30},
     {42, 43, 44, 45, 46, 47, 34, 39, 84, 85, 83, 86}},
    {0, {}, {}},
}};

const Layout& LayoutAt(int layout) { return Layouts[static_cast<std::size_t>(layout)]; }

void FillTable(StartTable& table, Int16 ringSquare, const Layout& layout,
               const std::array<Int16, MaxPieces>& squares) {
    table[0] = ringSquare;
    for (int i = 1; i <= layout.Count; ++i) table[i] = squares[static_cast<std::size_t>(i - 1)];
}

void PlaceSide(int side, const StartTable& table) {
    for (int i = 1; i <= PieceCount(side); ++i) {
        const Int16 square = table[i];
        if (!IsOnBoard(square) || Pos.Board[square] != Empty) continue;
        Pos.Board[square] = ToInt16(side);
        SquaresOf(side)[i] = square;
    }
}

}  // namespace

int LayoutPieces(int layout) {
    return layout >= 0 && layout < LayoutCount ? LayoutAt(layout).Count : 0;
}

const std::array<Int16, MaxPieces>& StartSquares(int side, int pieces) {
    const auto found = std::ranges::find(Layouts, pieces, &Layout::Count);
    const Layout& layout = found != Layouts.end() ? *found : LayoutAt(FreeSetupLayout);
    return side == Red ? layout.RedSquares : layout.BlueSquares;
}

void SelectStartLayout(int layout) {
    if (layout < 0 || layout >= LayoutCount) return;
    const Layout& chosen = LayoutAt(layout);
    Pos.RedCount = Pos.BlueCount = chosen.Count;
    if (layout == FreeSetupLayout) return;
    FillTable(RedStart, GoalSquare(Red), chosen, chosen.RedSquares);
    FillTable(BlueStart, GoalSquare(Blue), chosen, chosen.BlueSquares);
}

void SetUpStartPosition() {
    Position start;
    start.RedCount = Pos.RedCount;
    start.BlueCount = Pos.BlueCount;
    Pos = start;
    PlaceSide(Red, RedStart);
    PlaceSide(Blue, BlueStart);
    assert(PositionIsConsistent());
}

}  // namespace brastel
