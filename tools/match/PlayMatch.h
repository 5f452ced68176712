#pragma once

#include "tools/match/MatchGame.h"

#include <functional>
#include <vector>

/// All games of a match, in processes of their own.
namespace brastel {

/// How a match is run; the games do not depend on it.
struct MatchRun {
    int Games = 100;
    /// Processes that play at the same time.
    int Jobs = 1;
    /// The folder for a record file of each game, or empty.
    std::string Folder;
};

enum class MatchEnd { Complete, Stopped, NotSaved, Broken };

/// Called for each game as it comes.
using MatchProgress = std::function<void(const MatchGame& game)>;

/// Plays games 1 to run.Games and adds them to `games`, ordered by number. What was played before
/// an interrupt or a failure is kept.
MatchEnd PlayMatch(const MatchTerms& terms, const MatchRun& run, std::vector<MatchGame>& games,
                   const MatchProgress& progress);

}  // namespace brastel
