#pragma once

#include "tools/match/MatchGame.h"

/// Saves the games of a match as record files, which brastel can load.
namespace brastel {

/// The number, the strength of Red and of Blue, for example 0007-Expert-Difficult.txt.
std::string SavedGameName(const MatchTerms& terms, int number);

/// Checks that games 1 to `games` can be saved in the folder without overwriting a file. Creates
/// the folder if it does not exist; its parent folder must exist. Returns the error, or nothing.
std::string PrepareFolder(const std::string& folder, const MatchTerms& terms, int games);

/// Saves the game of the last PlayMatchGame. Returns 0 or the error number of the system.
int SaveMatchGame(const std::string& path);

}  // namespace brastel
