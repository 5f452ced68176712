#pragma once

#include "core/Numbers.h"

/// Who moves when: the computer's move and when it answers.
namespace brastel {

/// Handles window events again and again until the time, in seconds, has passed since the call.
void PauseWithEvents(float seconds);

/// Searches `depth` plies for the side to move, with "Thinking ..." and the busy cursor. Returns an
/// index into row 1 of MoveList, 0 when there is no candidate or the window was closed meanwhile.
Int16 ChooseMove(Int16 depth);

/// Lets the side to move play what a search of `depth` plies chooses, counts the entry and shows
/// btn_Backward. Without a candidate that can be played the side passes; in the opening its piece 1
/// receives the ring.
/// Returns false and plays nothing when the record is full, the window was closed, or the side has
/// no piece to give its ring to.
bool PlayChosenMove(Int16 depth);

/// The computer's turn: plays its move and hides btn_Forward. False when nothing was played.
bool ComputerMove();

/// Lets the computer move while it is its turn, it plays at all and the game goes on; each move is
/// followed by the win check if `checkWin`.
void RunComputerTurns(bool checkWin);

}  // namespace brastel
