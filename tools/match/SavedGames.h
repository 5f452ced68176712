#pragma once

#include "tools/match/MatchGame.h"

/// The record files of a match, which the game loads.
namespace brastel {

/// As in 0007-Expert-Difficult.txt: the number, who plays Red and who Blue.
std::string SavedGameName(const MatchTerms& terms, int number);

/// Makes sure that the games 1 to `games` can be saved in the folder, which is made if need be in
/// a folder that exists, and that none of them would overwrite a file. Returns what is in the way,
/// or nothing.
std::string PrepareFolder(const std::string& folder, const MatchTerms& terms, int games);

/// Saves the game that has just been played, as the game's own command does. Returns 0 or the error
/// number of the system.
int SaveMatchGame(const std::string& path);

}  // namespace brastel
