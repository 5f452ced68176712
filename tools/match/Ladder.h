#pragma once

#include "tools/match/MatchScore.h"

#include <array>
#include <string>
#include <vector>

/// The ladder: all strengths from the lowest up, each measured in a match against the one below.
namespace brastel {

/// Columns of the table that the program reads again. It has more columns.
enum LadderColumn : std::size_t {
    LevelColumn,
    NameColumn,
    ScoreColumn,
    DifferenceColumn,
    RatingColumn,
    LadderColumns = 11
};
using LadderCells = std::array<std::string, LadderColumns>;

struct LadderEntry {
    Int16 Level = 0;
    /// The difference to the lowest strength of the ladder.
    Elo Rating;
    /// The row of the table.
    LadderCells Cells;
};

struct Ladder {
    /// A sentence that says what was played.
    std::string Terms;
    /// From the lowest strength up.
    std::vector<LadderEntry> Entries;
};

/// An empty ladder for matches with these terms. The two strengths in the terms are not used.
Ladder BeginLadder(const MatchTerms& terms);

/// Adds the first strength of a match at the top. The second strength must be the topmost before;
/// in an empty ladder it becomes the lowest.
void AddMatch(Ladder& ladder, const MatchTerms& terms, const MatchScore& score);

// ---- As text: the terms and a Markdown table ----

std::string LadderHead(const Ladder& ladder);
std::string LadderRow(const LadderEntry& entry);
std::string LadderText(const Ladder& ladder);

/// Reads a ladder from a text and adds its entries at the top. Its lowest strength must be the
/// topmost strength of `ladder`, if there is one, and its terms must be the same. The ratings are
/// computed again. Other text is ignored. Returns the error, or nothing.
std::string JoinLadder(Ladder& ladder, const std::string& text);

}  // namespace brastel
