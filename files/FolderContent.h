#pragma once

#include <string>
#include <string_view>
#include <vector>

/// What a folder holds, for the lists of the file dialog. Names are the bytes that the system has;
/// they need not be UTF-8.
namespace brastel {

/// The pattern that every name matches.
constexpr std::string_view AllFiles = "*.*";

/// True if the text holds a wildcard, * or ?.
bool IsPattern(std::string_view text);

/// True if the name matches one of the patterns, which are separated by semicolons: * stands for
/// any run of characters, ? for one character of UTF-8.
bool MatchesPattern(std::string_view name, std::string_view patterns);

/// Names of the ordinary files in a folder that match, in byte order; links to files count. Hidden
/// files match only a pattern that begins with a dot. Empty if the folder cannot be read; entries
/// that vanish or cannot be asked are left out.
std::vector<std::string> FilesIn(const std::string& folder, std::string_view patterns);

/// Names of the folders in a folder, in byte order, hidden ones left out.
std::vector<std::string> FoldersIn(const std::string& folder);

/// Folder and name with one separator between them.
std::string JoinPath(std::string_view folder, std::string_view name);

}  // namespace brastel
