#pragma once

#include "tools/match/PlayMatch.h"

#include <optional>

/// The command line of brastel-match.
namespace brastel {

struct Options {
    MatchTerms Terms;
    MatchRun Run;
    bool Ladder = false;
    /// The lowest and the highest strength of the ladder.
    Int16 From = 1;
    Int16 To = 11;
    /// Files with ladders to join. If there are any, no game is played.
    std::vector<std::string> Joined;
    /// Empty for standard output.
    std::string TableFile;
    /// Empty for no chart.
    std::string ChartFile;
};

/// Reads the command line. Returns an exit status if the program must end.
std::optional<int> ReadOptions(int count, const char* const* texts, Options& options);

}  // namespace brastel
