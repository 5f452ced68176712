#pragma once

#include "tools/match/MatchScore.h"

#include <string>

/// The result of a match as text.
namespace brastel {

/// For example "+120 ± 35", "> 484" or "unknown".
std::string EloText(const Elo& elo);

/// Pieces, seed and opening.
std::string TermsText(const MatchTerms& terms);

/// The terms, a Markdown table of the two strengths and one of the whole match.
std::string MatchTable(const MatchTerms& terms, const MatchScore& score);

}  // namespace brastel
