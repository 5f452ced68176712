#pragma once

#include "tools/match/MatchGame.h"

#include <span>
#include <vector>

/// What the games of a match tell about the two strengths.
namespace brastel {

/// A difference of strength. Two sides 400 points apart score as 10 to 1.
struct Elo {
    double Points = 0;
    /// Half of the interval that holds the true difference in 95 of 100 matches; 0 for a bound.
    double Error = 0;
    /// 1 if the difference is at least `Points`, -1 if it is at most that: who won every game may
    /// be better by any amount.
    int Bound = 0;
};

/// The difference that goes with results, each 0 for a lost to 1 for a won game or the mean of
/// several games that depend on each other. Nothing played tells nothing: 0 with an error of 0.
Elo EloOf(std::span<const double> results);

/// The difference from the first to the third of three strengths.
Elo Sum(const Elo& lower, const Elo& upper);

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

/// Takes games with the same opening as one result, if `paired`. The games are ordered by number.
MatchScore ScoreOf(const std::vector<MatchGame>& games, bool paired);

}  // namespace brastel
