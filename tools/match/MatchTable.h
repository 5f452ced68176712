#pragma once

#include "tools/match/MatchScore.h"

#include <string>

/// Results as Markdown tables, which read well as plain text, too.
namespace brastel {

/// As in "+120 ± 35", or "> 484" where all games were won.
std::string EloText(const Elo& elo);

/// The result of one match.
std::string MatchTable(const MatchTerms& terms, const MatchScore& score);

/// A strength on the ladder.
struct Rung {
    Int16 Level = 0;
    /// Against the strength below, seen from this one; no games for the lowest strength measured.
    MatchScore BelowScore;
    /// Above the lowest strength measured.
    Elo Height;
    ThinkingTime Time;
};

/// Puts the first strength of a match on top of a ladder whose topmost is the second, or both on an
/// empty one.
void AddRung(std::vector<Rung>& ladder, const MatchTerms& terms, const MatchScore& score);

/// What was played and the head of the ladder's table, and a row of it, with their line ends.
std::string LadderTableHead(const MatchTerms& terms, int games);
std::string LadderTableRow(const Rung& rung);

}  // namespace brastel
