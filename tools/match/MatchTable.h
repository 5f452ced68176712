#pragma once

#include "tools/match/MatchScore.h"

#include <string>

/// The result of a match as text.
namespace brastel {

/// For example "+120 ± 35", "> 484" or "unknown".
std::string EloText(const Elo& elo);

/// The name of the first or second strength. If both are the same, the name says which one it is.
std::string NameOf(const MatchTerms& terms, bool first);

/// Everything that decides the games, in one line.
std::string TermsText(const MatchTerms& terms);

/// The terms, a Markdown table of the two strengths and one of the whole match.
std::string MatchTable(const MatchTerms& terms, const MatchScore& score);

}  // namespace brastel
