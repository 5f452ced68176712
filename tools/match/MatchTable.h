#pragma once

#include "tools/match/MatchScore.h"

#include <string>

/// The result of a match as text.
namespace brastel {

/// The terms that matches and ladders print: pieces, seed and opening.
std::string TermsText(const MatchTerms& terms);

/// The terms, a Markdown table of the two strengths and one of the
/// whole match.
std::string MatchTable(const MatchTerms& terms, const MatchScore& score);

}  // namespace brastel
