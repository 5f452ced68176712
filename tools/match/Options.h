#pragma once

#include "tools/match/PlayMatch.h"

#include <optional>
#include <string>

namespace brastel {

enum ExitStatus { Done = 0, BadArguments = 1, BadPath = 2, SystemFailed = 3, WasInterrupted = 130 };

struct Options {
    MatchTerms Terms;
    MatchRun Run;
    bool Ladder = false;
    Int16 From = 1;
    Int16 To = 11;
    /// Empty for none.
    std::string TableFile;
};

/// Reads the arguments. Where the program has nothing more to do, its exit status: help has been
/// printed, or a complaint about an argument.
std::optional<int> ReadOptions(int count, const char* const* texts, Options& options);

}  // namespace brastel
