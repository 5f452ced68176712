#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The files and folders in a folder, for the lists of the file dialog. Names are the bytes of the
/// system and can be other than UTF-8.
namespace brastel {

/// The pattern that every name matches.
constexpr std::string_view AllFiles = "*.*";

/// True if the text has a wildcard, * or ?.
bool IsPattern(std::string_view text);

/// True if the name matches one of the patterns. Semicolons separate patterns. * stands for any
/// number of characters, ? for one UTF-8 character.
bool MatchesPattern(std::string_view name, std::string_view patterns);

/// Names of the ordinary files in a folder that match, in byte order. Links to files are included.
/// Hidden files match only a pattern that begins with a dot. Empty if the folder cannot be read.
/// Entries whose kind cannot be read are left out.
std::vector<std::string> FilesIn(const std::string& folder, std::string_view patterns);

/// Names of the folders in a folder, in byte order, without hidden folders.
std::vector<std::string> FoldersIn(const std::string& folder);

/// Folder and name with one separator between them.
std::string JoinPath(std::string_view folder, std::string_view name);

}  // namespace brastel
