#pragma once

/// Stepping through the record: its two buttons, and the commands that begin a game or step back
/// and forward in it.
namespace brastel {

// ---- Buttons: shown or hidden, never disabled ----

extern bool ForwardVisible;
extern bool BackwardVisible;
void ShowForward(bool visible);
void ShowBackward(bool visible);

// ---- Commands ----
//
// How a game begins. SelectStartLayout and ReadGameFile change only the start tables. Each of the
// following calls the one above it and adds what is listed:
//   SetUpStartPosition   puts pieces, rings and turn where the start tables say
//   ResetGame            clears the status line and the win, seeds the generator
//   NewGameCommand       shows the board and hides both buttons
//   OpenGame             sets the level to Easy
//   BeginLoadedGame      like OpenGame it calls NewGameCommand; shows btn_Forward

/// Starts the game again from its start position, both buttons hidden and no branch pending. The
/// records stay.
void NewGameCommand();

/// Starts a game in a window just built: a new game at the lowest strength.
void OpenGame();

/// Goes to the start of the game in force with btn_Forward shown, ready to step through the game
/// loaded last.
void BeginLoadedGame();

/// Takes back the last entry by playing the others again from the start. No win is tested and the
/// computer does not move.
void StepBack();

/// Plays the next entry of the loaded game. Where there is none, or it does not fit the position,
/// nothing is played and btn_Forward is hidden.
void StepForward();

}  // namespace brastel
