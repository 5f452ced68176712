#pragma once

#include "tools/match/PlayMatch.h"

#include <optional>
#include <string>

/// The command line of brastel-match.
namespace brastel {

struct Options {
    MatchTerms Terms;
    MatchRun Run;
    /// Empty for no CSV file.
    std::string CsvFile;
    /// Goes on with the match in the CSV file.
    bool Resume = false;
};

/// Reads the command line. Returns an exit status if the program must end.
std::optional<int> ReadOptions(int count, const char* const* texts, Options& options);

}  // namespace brastel
