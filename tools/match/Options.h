#pragma once

#include "tools/match/PlayMatch.h"

#include <optional>

/// The command line of brastel-match.
namespace brastel {

struct Options {
    MatchTerms Terms;
    MatchRun Run;
};

/// Reads the command line. Returns an exit status if the program must end.
std::optional<int> ReadOptions(int count, const char* const* texts, Options& options);

}  // namespace brastel
