#pragma once

#include "tools/match/MatchGame.h"

#include <functional>
#include <vector>

/// Plays all games of a match in worker processes.
namespace brastel {

/// Options that do not change the games.
struct MatchRun {
    int Games = 100;
    /// Number of worker processes.
    int Jobs = 1;
    /// The folder for the record files. Empty if games are not saved.
    std::string Folder;
};

/// Stopped: by an interrupt. Failed: a worker process could not start or ended early.
enum class MatchEnd { Complete, Stopped, NotSaved, Failed };

/// Called after each game.
using MatchProgress = std::function<void(const MatchGame& game)>;

/// Plays games 1 to run.Games and adds them to `games`, ordered by number. After an interrupt or a
/// failure, `games` has the games that are complete.
MatchEnd PlayMatch(const MatchTerms& terms, const MatchRun& run, std::vector<MatchGame>& games,
                   const MatchProgress& progress);

}  // namespace brastel
