#pragma once

#include "tools/match/Elo.h"
#include "tools/match/MatchGame.h"

/// The result of a match: wins, times and the difference of strength.
namespace brastel {

/// Per move, in milliseconds.
struct MoveTime {
    double Mean = 0;
    double Worst = 0;
};

/// Wins and losses are those of the first strength.
struct MatchScore {
    int Games = 0;
    int Wins = 0;
    int Draws = 0;
    int Losses = 0;
    /// The wins and losses in games in which the first strength played Red.
    int WinsAsRed = 0;
    int LossesAsRed = 0;
    int DifferentGames = 0;
    /// In entries, including ring placements and opening.
    double MeanLength = 0;
    MoveTime First;
    MoveTime Second;
    /// Unknown with fewer than five games.
    Elo Difference;
};

/// The mean score of the first strength: 0 for a loss, 0.5 for a draw, 1 for a win. 0 without
/// games.
double MeanOf(const MatchScore& score);

/// The score of one game for the first strength.
double ResultOf(const MatchTerms& terms, const MatchGame& game);

/// If colours alternate, games 2k - 1 and 2k have the same opening and count as one result for the
/// error.
MatchScore ScoreOf(const MatchTerms& terms, const MatchGames& games);

}  // namespace brastel
