#pragma once

#include "tools/match/MatchGame.h"

#include <functional>
#include <string>
#include <vector>

/// Plays the games of a match in worker processes.
namespace brastel {

/// Options that do not change the games.
struct MatchRun {
    int Games = 100;
    /// Number of worker processes.
    int Jobs = 1;
    /// The folder for the record files. Empty if games are not saved.
    std::string Folder;
    /// Record files and the CSV file may be overwritten.
    bool Force = false;
};

/// Called after each game, and with nullptr at least ten times a second between games. The match
/// ends when it returns false.
using MatchProgress = std::function<bool(const MatchGame* game)>;

/// Plays the games with these numbers. They can finish in another order. An interrupt, a worker
/// process that fails or a game that cannot be saved ends the match early.
void PlayMatch(const MatchTerms& terms, const MatchRun& run, const std::vector<int>& numbers,
               const MatchProgress& progress);

}  // namespace brastel
