#pragma once

#include "files/FileErrors.h"
#include "play/GameRecord.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Games saved as text files. FORMAT.md beside this file describes them.
namespace brastel {

/// Full path of the file that was read completely last; empty before.
extern std::string LoadedFileName;

/// Writes the game: counts, start tables and the entries played. Asks before it overwrites an
/// existing file. A failure is shown to the user; it leaves an existing file as it was, and can
/// leave a part of a new one behind. `path` is UTF-8 and may be relative to the working folder.
void SaveGameFile(const std::string& path);

/// How the reading of a game file went.
struct GameReading {
    FileError Error = FileError::None;
    /// What is wrong, in a few words without a full stop; empty when nothing is.
    std::string_view Cause;
    /// The line on which it is wrong, from 1; for a count too large that of the count.
    std::int64_t Line = 0;
    /// What the system calls the failure (errno), or 0 if the failure is none of its own.
    int SystemError = 0;
    /// The lines on which the entries read begin.
    Table<std::int64_t, 0, MaxEntries> EntryLine;
};

/// Reads a game into the counts, the start tables and the loaded record; what was read before a
/// failure stays. The position is not set up. `path` is UTF-8 and may be relative.
GameReading ReadGameFile(const std::string& path);

/// Reads a game into the start tables and the loaded record, between taking the main window down
/// and building it again. The file LoadedFileName is not read again while its game stands. A
/// failure is shown to the user; what was read before it stays.
void LoadGameFile(const std::string& path);

}  // namespace brastel
