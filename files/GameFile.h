#pragma once

#include <string>

/// Games saved as text files. FORMAT.md beside this file describes them.
namespace brastel {

/// Full path of the file read last, empty until one has been read completely.
extern std::string LoadedFileName;

/// Writes the game: counts, start tables and the entries played. Asks before it overwrites an
/// existing file. A failure is shown to the user and can leave a part of the file behind; the game
/// is untouched. `path` is UTF-8 and may be relative to the working folder.
void SaveGameFile(const std::string& path);

/// Reads a game into the start tables and the loaded record, between taking the main window down
/// and building it again. The file read last is not read again. A failure is shown to the user;
/// what was read before it stays.
void LoadGameFile(const std::string& path);

}  // namespace brastel
