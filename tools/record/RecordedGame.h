#pragma once

#include "core/Position.h"
#include "files/GameFile.h"

#include <string>
#include <string_view>
#include <vector>

/// A game that was read from its file and played to its end.
namespace brastel {

struct RecordedEntry {
    Action Played;
    /// The line of the file on which it begins.
    std::int64_t Line;
};

struct RecordedGame {
    std::string Path;
    /// The error of reading. After an error, only SystemError, Cause and Line are set.
    FileError Error = FileError::None;
    /// The error number of the system (errno), or 0 if no system call failed.
    int SystemError = 0;
    /// What is wrong with the file or with BrokenEntry. Empty if nothing is wrong.
    std::string_view Cause;
    /// The line of this error.
    std::int64_t Line = 0;

    /// Entry k is Entries[k - 1].
    std::vector<RecordedEntry> Entries;
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
