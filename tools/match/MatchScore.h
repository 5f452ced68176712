#pragma once

#include "tools/match/Elo.h"
#include "tools/match/MatchGame.h"

#include <vector>

/// What the games of a match tell about the two strengths.
namespace brastel {

struct ThinkingTime {
    double MedianSeconds = 0;
    double WorstSeconds = 0;
};

/// Seen from the first strength.
struct MatchScore {
    int Games = 0;
    int Wins = 0;
    int Draws = 0;
    int Losses = 0;
    /// Of these, those of games in which the first strength played Red.
    int WinsAsRed = 0;
    int LossesAsRed = 0;
    int DifferentGames = 0;
    /// Entries, the ring placements and the opening included.
    double MeanLength = 0;
    ThinkingTime First;
    ThinkingTime Second;
    Elo Difference;
};

/// What a game brought the first strength, from 0 if lost to 1 if won; 0 before the first game.
double MeanOf(const MatchScore& score);
int WinsByRed(const MatchScore& score);
int WinsByBlue(const MatchScore& score);

/// Takes games with the same opening as one result for the error, if `paired`. The games are
/// ordered by number.
MatchScore ScoreOf(const std::vector<MatchGame>& games, bool paired);

}  // namespace brastel
