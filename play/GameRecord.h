#pragma once

#include "core/Action.h"

/// The record of the game being played, the record of the game loaded last, and walking along both.
///
/// Entries 1 and 2 are the ring placements. MoveCount is the number of the next entry.
namespace brastel {

// ---- Records ----

constexpr int MaxEntries = 200;
/// Entry 0 is not used.
using RecordColumn = Table<Int16, 0, MaxEntries>;

/// The game being played: entries 1 to MoveCount - 1. What lies beyond is left over.
extern RecordColumn PlayedFrom;
extern RecordColumn PlayedTo;

/// The game loaded last: entries 1 to LoadedCount. A damaged file can leave a count above
/// MaxEntries.
extern RecordColumn LoadedFrom;
extern RecordColumn LoadedTo;
extern Int16 LoadedCount;

/// The entry at which the user left the loaded game with an action of their own, 0 for none.
extern Int16 BranchMark;

/// Entry k, 1 to MaxEntries, of either record.
inline Action PlayedEntry(int k) { return {PlayedFrom[k], PlayedTo[k]}; }
inline Action LoadedEntry(int k) { return {LoadedFrom[k], LoadedTo[k]}; }

/// True at the end of the record, where no further action is taken.
bool IsRecordFull();

/// Writes the entry at MoveCount. Counting on is left to the caller. Precondition: not full.
void WriteEntry(const Action& entry);

/// Counts the entry just written.
void CountEntry();

/// Plays an entry again without showing it, and counts it. One that does not fit only passes the
/// turn: pieces set up outside may have come back earlier in play than they do here.
void ReplayEntry(const Action& entry);

/// Takes the start tables in force and the loaded record as one game, from its start: stepping back
/// offers btn_Forward again where the game played agrees with it.
void TakeLoadedGame();

// ---- Buttons: shown or hidden, never disabled ----

extern bool ForwardVisible;
extern bool BackwardVisible;
void ShowForward(bool visible);
void ShowBackward(bool visible);

// ---- Commands ----

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
