#pragma once

#include "tools/match/MatchScore.h"

#include <string>

namespace brastel {

/// The terms that both kinds of tables name: pieces, seed and opening.
std::string TermsText(const MatchTerms& terms);

/// The result of a match: what was played, a Markdown table of the two strengths and one of the
/// match as a whole.
std::string MatchTable(const MatchTerms& terms, const MatchScore& score);

}  // namespace brastel
