#pragma once

#include "core/Position.h"
#include "files/GameFile.h"

#include <string>
#include <vector>

/// A game that was read from its file and played to its end.
namespace brastel {

/// After an error of reading, nothing but the members of GameReading and Path is set. Without one,
/// Cause and Line are those of BrokenEntry.
struct RecordedGame : GameReading {
    std::string Path;

    /// Entry k is Entries[k - 1].
    std::vector<Action> Entries;
    /// The positions after 0, 1, 2 ... entries, as far as Forward can play them. They can go beyond
    /// BrokenEntry.
    std::vector<Position> Positions;
    /// The first entry that breaks the rules, or 0.
    int BrokenEntry = 0;
    /// The first entry after which a side has won, or 0. More entries can follow.
    int WinningEntry = 0;
    Int16 Winner = Empty;

    bool IsLegal() const { return Error == FileError::None && BrokenEntry == 0; }
    /// The number of entries that were played.
    int PlayedEntries() const { return static_cast<int>(Positions.size()) - 1; }
};

/// Reads the file and plays the game. "-" is standard input. A pipe or a device is read to its end,
/// but not beyond MaxFileSize, or until a signal comes. Overwrites the current game, its record and
/// the start tables.
RecordedGame ReadRecordedGame(const std::string& path);

}  // namespace brastel
