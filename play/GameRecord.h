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

/// The game being played: entries 1 to MoveCount - 1. Later entries are left over from before a
/// step back.
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

/// Keeps the start tables in force as the start of the loaded game. IsOnLoadedLine compares later
/// games with that start.
void KeepLoadedStart();

/// True if the loaded game has an entry k.
bool HasLoadedEntry(int k);

/// True if the first `kept` entries played are those of the loaded game, from the same start, and
/// the loaded game goes on.
bool IsOnLoadedLine(int kept);

}  // namespace brastel
