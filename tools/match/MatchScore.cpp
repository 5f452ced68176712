#include "tools/match/MatchScore.h"

#include <algorithm>
#include <set>

namespace brastel {

namespace {

// ---- Results ----

/// With fewer games, even a clean sweep would often be luck.
constexpr int LeastGames = 5;

/// The score of the first strength.
double ResultOf(const MatchGame& game) {
    if (game.Winner == Empty) return 0.5;
    return (game.Winner == Red) == game.FirstIsRed ? 1 : 0;
}

int OpeningOf(const MatchGame& game, bool paired) {
    return paired ? (game.Number + 1) / 2 : game.Number;
}

/// The mean score of the games of each opening.
std::vector<double> ResultsOf(const std::vector<MatchGame>& games, bool paired) {
    std::vector<double> results;
    for (auto game = games.begin(); game != games.end();) {
        const int opening = OpeningOf(*game, paired);
        double sum = 0;
        int count = 0;
        for (; game != games.end() && OpeningOf(*game, paired) == opening; ++game, ++count) {
            sum += ResultOf(*game);
        }
        results.push_back(sum / count);
    }
    return results;
}

// ---- Times ----

ThinkingTime TimeOf(const std::vector<MatchGame>& games, bool first) {
    std::vector<float> times;
    for (const MatchGame& game : games) {
        // Red plays the odd entries.
        for (int k = game.FirstIsRed == first ? 1 : 2; k <= game.Entries; k += 2) {
            if (game.Seconds[k] >= 0) times.push_back(game.Seconds[k]);
        }
    }
    if (times.empty()) return {};
    std::ranges::sort(times);
    return {times[times.size() / 2], times.back()};
}

}  // namespace

double MeanOf(const MatchScore& score) {
    return score.Games == 0 ? 0 : (score.Wins + score.Draws / 2.0) / score.Games;
}
int WinsByRed(const MatchScore& score) {
    return score.WinsAsRed + score.Losses - score.LossesAsRed;
}
int WinsByBlue(const MatchScore& score) { return score.Wins - score.WinsAsRed + score.LossesAsRed; }

MatchScore ScoreOf(const std::vector<MatchGame>& games, bool paired) {
    MatchScore score;
    score.Games = static_cast<int>(games.size());
    std::set<std::uint64_t> different;
    for (const MatchGame& game : games) {
        const double result = ResultOf(game);
        score.Wins += result > 0.5;
        score.Losses += result < 0.5;
        score.WinsAsRed += result > 0.5 && game.FirstIsRed;
        score.LossesAsRed += result < 0.5 && game.FirstIsRed;
        score.MeanLength += static_cast<double>(game.Entries) / score.Games;
        different.insert(game.Hash);
    }
    score.Draws = score.Games - score.Wins - score.Losses;
    score.DifferentGames = static_cast<int>(different.size());
    score.First = TimeOf(games, true);
    score.Second = TimeOf(games, false);
    if (score.Games >= LeastGames)
        score.Difference = EloOf(MeanOf(score), ResultsOf(games, paired));
    return score;
}

}  // namespace brastel
