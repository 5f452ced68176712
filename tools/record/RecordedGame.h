#pragma once

#include "core/Position.h"
#include "files/GameFile.h"

#include <string>
#include <string_view>
#include <vector>

/// A game read from its file and played through.
namespace brastel {

struct RecordedEntry {
    Action Played;
    /// Where it begins in the file.
    std::int64_t Line;
};

struct RecordedGame {
    std::string Path;
    /// Whether the file could be read. If not, nothing below holds anything.
    FileError Error = FileError::None;
    /// What the system calls the failure (errno), or 0 if the failure is none of its own.
    int SystemError = 0;
    /// What is wrong with the file, or with BrokenEntry; empty if nothing is.
    std::string_view Cause;
    /// The line of the file that Cause speaks of.
    std::int64_t Line = 0;

    /// Entry k is Entries[k - 1].
    std::vector<RecordedEntry> Entries;
    /// The positions after 0, 1, 2 ... entries: as far as the game steps through them, which can be
    /// beyond BrokenEntry.
    std::vector<Position> Positions;
    /// The first entry that breaks the rules, or 0.
    int BrokenEntry = 0;
    /// The first entry with which a side has won, or 0. Play may go on after it.
    int WinningEntry = 0;
    Int16 Winner = Empty;

    bool IsLawful() const { return Error == FileError::None && BrokenEntry == 0; }
    /// Entries that Positions has.
    int PlayedEntries() const { return static_cast<int>(Positions.size()) - 1; }
};

/// Reads the file and plays it. The running game, its record and the start tables are overwritten.
RecordedGame ReadRecordedGame(const std::string& path);

}  // namespace brastel
