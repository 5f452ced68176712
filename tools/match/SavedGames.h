#pragma once

#include "tools/match/MatchGame.h"

#include <string>
#include <vector>

/// Saves the games of a match as record files, which brastel can load.
namespace brastel {

/// The number, the strength of Red and of Blue, for example 0007-Expert-Difficult.txt.
std::string SavedGameName(const MatchTerms& terms, int number);

/// Checks that the games with these numbers can be saved in the folder, without `force` as new
/// files. Creates the folder if it does not exist; its parent folder must exist. Returns the error,
/// or nothing.
std::string PrepareFolder(const std::string& folder, const MatchTerms& terms,
                          const std::vector<int>& numbers, bool force);

/// Saves the game of the last PlayMatchGame. Returns 0 or the error number of the system: EEXIST if
/// the file exists and `force` is false.
int SaveMatchGame(const std::string& path, bool force);

}  // namespace brastel
