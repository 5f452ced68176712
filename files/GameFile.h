#pragma once

#include "files/FileErrors.h"
#include "play/GameRecord.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Saving and loading games as text files. FORMAT.md describes the format and the errors.
namespace brastel {

/// Full path of the last file that was read without an error. Empty if there is none.
extern std::string LoadedFileName;

/// Writes the counts, the start tables and the entries played. Asks the user before it overwrites
/// an existing file. After a failure, a box shows the error and an existing file is unchanged; a
/// part of a new file can remain. `path` is UTF-8 and can be relative to the working folder.
void SaveGameFile(const std::string& path);

/// Result of reading a game file.
struct GameReading {
    FileError Error = FileError::None;
    /// The error in a few words without a full stop. Empty without an error.
    std::string_view Cause;
    /// The line of the error, from 1. For a count that is too large, the line of the count.
    std::int64_t Line = 0;
    /// The error number of the system (errno), or 0 if no system call failed.
    int SystemError = 0;
    /// The line on which each entry begins.
    Table<std::int64_t, 0, MaxEntries> EntryLine;
};

/// Reads a game into the counts, the start tables and the loaded record. Values read before a
/// failure are kept. The position does not change. `path` is UTF-8 and can be relative.
GameReading ReadGameFile(const std::string& path);

/// Closes the main window, calls ReadGameFile, and opens the main window again. A box shows a
/// failure. The file LoadedFileName is not read again if its game is still in the start tables and
/// it was not saved since.
void LoadGameFile(const std::string& path);

}  // namespace brastel
