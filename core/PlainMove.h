#pragma once

#include "core/Position.h"

/// Rules 2 and 10, plain moves: a piece moves by one or two steps in any direction and jumps over
/// nothing, or moves along its column next to a friendly piece.
namespace brastel {

/// The squares that must be empty for a two-step move, as offsets from the moving piece's square;
/// Count is 0 for a one-step move and -1 for a shape that is no move at all.
struct PathGuards {
    int Count = -1;
    std::array<int, 2> Offset{};
};

/// Guards of the move by (columns, rows), each -2 to 2. No piece jumps: straight and diagonal
/// two-step moves pass over the square between, a knight's move over the two squares between.
constexpr PathGuards GuardsOf(int columns, int rows) {
    const int acrossSign = (columns > 0) - (columns < 0);
    const int downSign = (rows > 0) - (rows < 0);
    const int across = columns * acrossSign;
    const int down = rows * downSign;
    const int diagonal = acrossSign * Right + downSign * Down;
    if (across > 2 || down > 2) return {};
    if (across <= 1 && down <= 1) return {0, {}};
    if (across == down || across == 0 || down == 0) return {1, {diagonal}};
    return {2, {across == 2 ? acrossSign * Right : downSign * Down, diagonal}};
}

/// True if nothing stands on the guards of a move from a field square, or if it has none.
bool AreEmpty(const PathGuards& guards, int square);

/// True if the piece on `from` may move to `to`: both rings placed, a piece of the side to move
/// inside the field, an empty field square one or two steps away with nothing jumped over, or a
/// slide along the column that stops next to a friendly piece. Any numbers may be passed; what is
/// off the board is refused. Ring carriers move like other pieces here.
bool CheckPlainMove(int from, int to);

/// Moves a piece of the side to move to `to`, its rings with it, and forgets the last hit. `to`
/// must be an empty board square.
void ApplyPlainMove(Piece piece, int to);

}  // namespace brastel
