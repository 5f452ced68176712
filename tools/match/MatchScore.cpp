#include "tools/match/MatchScore.h"

#include <algorithm>
#include <set>
#include <vector>

namespace brastel {

namespace {

/// In fewer games, one side often wins all by chance.
constexpr int LeastGames = 5;

/// The mean score of the games of each opening.
std::vector<double> ResultsOf(const MatchTerms& terms, const MatchGames& games) {
    std::vector<double> results;
    for (auto game = games.begin(); game != games.end();) {
        // The next game can be the other game of this opening.
        const bool isPair =
            terms.Alternates && game->first % 2 == 1 && games.contains(game->first + 1);
        double sum = 0;
        for (int n = isPair ? 2 : 1; n > 0; --n, ++game) sum += ResultOf(terms, game->second);
        results.push_back(isPair ? sum / 2 : sum);
    }
    return results;
}

MoveTime TimeOf(const MatchTerms& terms, const MatchGames& games, bool first) {
    constexpr double InMillisecond = 1e6;
    std::int64_t total = 0;
    std::int64_t worst = 0;
    int moves = 0;
    for (const auto& [number, game] : games) {
        const bool isRed = FirstPlaysRed(terms, number) == first;
        const ThinkingTime& time = isRed ? game.RedTime : game.BlueTime;
        total += time.Total;
        worst = std::max(worst, time.Worst);
        // Red moves first after the opening.
        moves += (game.Entries - OpeningEntries(terms) + (isRed ? 1 : 0)) / 2;
    }
    return {static_cast<double>(total) / InMillisecond / std::max(moves, 1),
            static_cast<double>(worst) / InMillisecond};
}

}  // namespace

double MeanOf(const MatchScore& score) {
    return score.Games == 0 ? 0 : (score.Wins + score.Draws / 2.0) / score.Games;
}

double ResultOf(const MatchTerms& terms, const MatchGame& game) {
    if (game.Winner == Empty) return 0.5;
    return (game.Winner == Red) == FirstPlaysRed(terms, game.Number) ? 1 : 0;
}

MatchScore ScoreOf(const MatchTerms& terms, const MatchGames& games) {
    MatchScore score;
    score.Games = static_cast<int>(games.size());
    std::set<std::uint64_t> different;
    for (const auto& [number, game] : games) {
        const double result = ResultOf(terms, game);
        const bool isRed = FirstPlaysRed(terms, number);
        score.Wins += result > 0.5;
        score.Losses += result < 0.5;
        score.WinsAsRed += result > 0.5 && isRed;
        score.LossesAsRed += result < 0.5 && isRed;
        score.MeanLength += static_cast<double>(game.Entries) / score.Games;
        different.insert(game.Hash);
    }
    score.Draws = score.Games - score.Wins - score.Losses;
    score.DifferentGames = static_cast<int>(different.size());
    score.First = TimeOf(terms, games, true);
    score.Second = TimeOf(terms, games, false);
    if (score.Games >= LeastGames) {
        score.Difference = EloOf(MeanOf(score), ResultsOf(terms, games));
    }
    return score;
}

}  // namespace brastel
