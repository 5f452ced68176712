#pragma once

#include "core/Numbers.h"

/// Squares of the board and their places in the board view.
///
/// A square is 8 * row + column + 1 with rows 0 to 13 from the top and columns 0 to 7 from the
/// left, so the board holds squares 1 to 112. The field is rows 1 to 12, columns 1 to 6; all around
/// it lie the outside cells, with the goal mouths 4, 5 (top) and 108, 109 (bottom) among them.
/// View coordinates are logical pixels of the window's inner area.
namespace brastel {

// ---- Squares ----

constexpr int RowCount = 14;
constexpr int ColumnCount = 8;
constexpr int FirstSquare = 1;
constexpr int LastSquare = RowCount * ColumnCount;
/// The square of a piece that has no place on the board.
constexpr int NoSquare = 0;

constexpr int Left = -1;
constexpr int Right = 1;
constexpr int Up = -ColumnCount;
constexpr int Down = ColumnCount;

constexpr bool IsOnBoard(int square) { return square >= FirstSquare && square <= LastSquare; }

/// Row and column of a board square. For other numbers the result can be out of range.
constexpr int Row(int square) { return (square - 1) / ColumnCount; }
constexpr int Column(int square) { return (square - 1) % ColumnCount; }

/// The square of a row and column, or NoSquare when they lie off the board.
constexpr int SquareAt(int row, int column) {
    const bool onBoard = row >= 0 && row < RowCount && column >= 0 && column < ColumnCount;
    return onBoard ? ColumnCount * row + column + 1 : NoSquare;
}

namespace detail {
constexpr auto FieldSquares = [] {
    Table<bool, FirstSquare, LastSquare> field;
    for (int row = 1; row < RowCount - 1; ++row) {
        for (int column = 1; column < ColumnCount - 1; ++column) {
            field[SquareAt(row, column)] = true;
        }
    }
    return field;
}();
}  // namespace detail

/// True for the 72 squares inside the border lines; false for every other number.
constexpr bool InField(int square) { return IsOnBoard(square) && detail::FieldSquares[square]; }

/// The columns of both goals.
constexpr bool IsGoalColumn(int column) { return column == 3 || column == 4; }

/// True for the two squares of either goal, which are no part of the field.
constexpr bool IsGoalMouth(int square) {
    return IsOnBoard(square) && !InField(square) && IsGoalColumn(Column(square));
}

// ---- View coordinates ----

constexpr int CellSize = 40;
constexpr int BoardLeft = 20;
constexpr int BoardTop = 20;
constexpr int BoardWidth = ColumnCount * CellSize;
constexpr int BoardHeight = RowCount * CellSize;

/// The top left corner of a square in the view.
constexpr int SquareLeft(int square) { return Column(square) * CellSize + BoardLeft; }
constexpr int SquareTop(int square) { return Row(square) * CellSize + BoardTop; }

/// True when the point lies on one of the 112 squares as drawn.
constexpr bool IsBoardPoint(int x, int y) {
    return x >= BoardLeft && x < BoardLeft + BoardWidth && y >= BoardTop &&
           y < BoardTop + BoardHeight;
}

/// The square under a point on the board. The divisions truncate toward zero, so a point off the
/// board gives a square of another row or none: test IsBoardPoint first.
constexpr Int16 SquareFromPoint(int x, int y) {
    return ToInt16(1 + (x - BoardLeft) / CellSize + ColumnCount * ((y - BoardTop) / CellSize));
}

/// A coordinate brought to the corner of its cell. Truncates toward zero: up to one cell left of or
/// above the board snaps onto the first column or row, which the free setup relies on.
constexpr int SnapX(int x) { return BoardLeft + CellSize * ((x - BoardLeft) / CellSize); }
constexpr int SnapY(int y) { return BoardTop + CellSize * ((y - BoardTop) / CellSize); }

}  // namespace brastel
