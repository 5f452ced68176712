#pragma once

#include "core/Numbers.h"
#include "core/Square.h"

#include <algorithm>
#include <array>

/// The position: the board, the pieces, the rings and the counters that the rules read.
namespace brastel {

// ---- Sides ----

/// The values name the sides everywhere: board cells, the turn, the computer's side.
constexpr Int16 Red = -1;
constexpr Int16 Blue = 1;
constexpr Int16 Empty = 0;

/// The goal square that a side's carrier enters: always this one of the goal's two. The side's ring
/// lies there at the start.
constexpr Int16 GoalSquare(int side) { return side == Red ? 4 : 109; }

/// One square toward the goal of a side: Red attacks the top, Blue the bottom.
constexpr int Forward(int side) { return side == Red ? Up : Down; }

// ---- The block of data ----

constexpr int MaxPieces = 12;
constexpr int RingCount = 2;

/// Cells by square. One margin row above and below the board always reads 0, so that a rule may
/// look one row beyond it; goal mouths and other outside cells are ordinary cells.
using BoardCells = Table<Int16, -7, 120>;
/// Squares by piece index, 1 to the side's count; entry 0 is not used.
using PieceSquares = Table<Int16, 0, MaxPieces>;

/// Everything an action can change, in one block: copying it saves a position, assigning it
/// restores one, == compares two.
struct Position {
    BoardCells Board;
    PieceSquares RedSquare;
    PieceSquares BlueSquare;
    /// Pieces of each side. A damaged game file can leave more than MaxPieces here:
    /// PieceCount is safe to loop to.
    Int16 RedCount = 0;
    Int16 BlueCount = 0;
    /// Pieces placed so far in a free setup, 0 in every other game.
    Int16 RedPlaced = 0;
    Int16 BluePlaced = 0;
    /// The squares of ring 0 and ring 1; whoever stands there carries the ring.
    std::array<Int16, RingCount> RingSquare{GoalSquare(Red), GoalSquare(Blue)};
    /// Index of the piece that made the last hit and of the piece it hit; no sides.
    std::array<Int16, 2> LastHit{};
    /// Red pieces pushed outside less Blue ones, returns taken off.
    Int16 OutsideBalance = 0;
    Int16 SideToMove = Red;
    /// Number of the next record entry, 1 at a new game; 1 and 2 are the ring placements.
    Int16 MoveCount = 1;

    bool operator==(const Position&) const = default;
};

/// The one position of the running game. The search tries its moves on it, too.
extern Position Pos;

/// Moves are accepted once both rings are placed.
inline bool BothRingsPlaced() { return Pos.MoveCount >= 3; }

// ---- Pieces ----

/// One piece: its side and its index from 1. Index 0 is no piece.
struct Piece {
    Int16 Side = Empty;
    Int16 Index = 0;

    explicit operator bool() const { return Index != 0; }
    bool operator==(const Piece&) const = default;
};

inline PieceSquares& SquaresOf(int side) { return side == Red ? Pos.RedSquare : Pos.BlueSquare; }
inline const PieceSquares& SquaresIn(const Position& position, int side) {
    return side == Red ? position.RedSquare : position.BlueSquare;
}

/// Pieces with which a side starts, 0 to MaxPieces whatever its count holds.
inline int StartCount(int side, const Position& position = Pos) {
    return std::clamp<int>(side == Red ? position.RedCount : position.BlueCount, 0, MaxPieces);
}

/// Pieces of a side now: those of an unfinished free setup, too. 0 to MaxPieces.
inline int PieceCount(int side, const Position& position = Pos) {
    const int placed = side == Red ? position.RedPlaced : position.BluePlaced;
    return std::clamp(placed, StartCount(side, position), MaxPieces);
}

/// A piece's square; NoSquare when there is no such piece.
Int16 SquareOf(Piece piece, const Position& position = Pos);

/// Index of the first piece of the side on the square, 0 if none.
inline Int16 FindAt(int side, int square, const Position& position = Pos) {
    const PieceSquares& squares = SquaresIn(position, side);
    // The loop runs backward and never stops early: the search asks at every move, and an early end
    // costs a branch misprediction each time.
    int found = 0;
    for (int i = PieceCount(side, position); i >= 1; --i) found = squares[i] == square ? i : found;
    return ToInt16(found);
}
inline Int16 FindRedAt(int square) { return FindAt(Red, square); }
inline Int16 FindBlueAt(int square) { return FindAt(Blue, square); }

/// The piece that a board square holds, or no piece; any number may be asked for.
Piece PieceOn(int square, const Position& position = Pos);

/// True if a piece's image has its top left corner at this view point; no point off the board has.
bool IsPieceAt(int x, int y);

// ---- Rings ----

inline bool IsRingSquare(int square) {
    return square == Pos.RingSquare[0] || square == Pos.RingSquare[1];
}

/// True if a piece of the side stands on the square and carries a ring.
inline bool CarriesRing(int side, int square) {
    return IsRingSquare(square) && Pos.Board[square] == side;
}

}  // namespace brastel
