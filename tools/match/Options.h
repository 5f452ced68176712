#pragma once

#include "tools/match/PlayMatch.h"

#include <optional>

/// The command line of brastel-match.
namespace brastel {

enum ExitStatus { Done = 0, BadArguments = 1, BadPath = 2, SystemFailed = 3, WasInterrupted = 130 };

struct Options {
    MatchTerms Terms;
    MatchRun Run;
    bool Ladder = false;
    /// The lowest and the highest strength of the ladder.
    Int16 From = 1;
    Int16 To = 11;
    /// Ladders to be joined; then nothing is played.
    std::vector<std::string> Joined;
    /// Empty for standard output.
    std::string TableFile;
    /// Empty for none.
    std::string ChartFile;
};

/// Reads the arguments. Where the program has nothing more to do, its exit status: help has been
/// printed, or a complaint about an argument.
std::optional<int> ReadOptions(int count, const char* const* texts, Options& options);

}  // namespace brastel
