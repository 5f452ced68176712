#pragma once

#include "tools/match/MatchScore.h"

#include <array>
#include <string>
#include <vector>

/// The strengths one above the other, each measured against the one below.
namespace brastel {

/// The table has more columns than these.
enum LadderColumn : std::size_t {
    LevelColumn,
    NameColumn,
    ScoreColumn,
    StepColumn,
    HeightColumn,
    LadderColumns = 11
};
using LadderCells = std::array<std::string, LadderColumns>;

struct Rung {
    Int16 Level = 0;
    /// Above the foot.
    Elo Height;
    /// The row of the table.
    LadderCells Cells;
};

struct Ladder {
    /// What was played, in a sentence.
    std::string Terms;
    std::vector<Rung> Rungs;
};

/// An empty ladder. Which strengths play, and how often, is left to each match.
Ladder BeginLadder(const MatchTerms& terms);

/// Puts the first strength of a match on top. The second one is on top before, or stands at the
/// foot from now on.
void AddMatch(Ladder& ladder, const MatchTerms& terms, const MatchScore& score);

// ---- As text: the terms and a Markdown table ----

std::string LadderHead(const Ladder& ladder);
std::string LadderRow(const Rung& rung);
std::string LadderText(const Ladder& ladder);

/// Puts the rungs of such a text on top; its foot must be the topmost strength before, if there is
/// any, and its terms the same. The heights are added up anew. Whatever else it holds is passed
/// over. Returns what is wrong with it, or nothing.
std::string JoinLadder(Ladder& ladder, const std::string& text);

}  // namespace brastel
