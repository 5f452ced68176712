#pragma once

#include "core/Position.h"

#include <string_view>

/// The state of the game beside its position, and the status line that reports on it.
namespace brastel {

// ---- State ----

/// Truth values that the game keeps are 16-bit, too.
constexpr Int16 False = 0;
constexpr Int16 True = -1;

/// The side that the computer plays: Blue in every game.
constexpr Int16 ComputerSide = Blue;
/// Set when a win is announced; cleared by ResetGame only.
extern Int16 GameOver;
/// 0 when two people play, otherwise the depth of the computer's search in plies, 1 to 11.
extern Int16 Level;
constexpr Int16 TwoPlayerLevel = 0;

/// Chooses the strength, 0 to 11; nothing else happens, even if it is the computer's turn. Another
/// number is ignored, as is every choice while the computer thinks.
void SetLevel(Int16 level);

/// True from the start of a search until its move is to be played. Whatever the user does in that
/// time is ignored, not kept for later.
extern bool IsThinking;

// ---- Status line ----

constexpr std::string_view BlankText = "               ";
constexpr std::string_view ThinkingText = "Thinking ...";
constexpr std::string_view RedWinsText = "Red Wins!";
constexpr std::string_view BlueWinsText = "Blue Wins!";
constexpr std::string_view PushBackText = "You Cant't Push Back";

/// Shows the text and whose turn it is, with a beep for everything but BlankText and ThinkingText.
void ShowStatus(std::string_view text);

// ---- Beginning and end of a game ----

/// Starts a new game from the current start tables: position, status line, flags, beam and a fresh
/// seed. The pieces are not shown yet, the record and its buttons stay.
void ResetGame();

/// Announces the winner, if there is one, and ends the game. People can play on after the
/// end. Each further action announces the winner again while its carrier stands there.
void CheckWin();

}  // namespace brastel
