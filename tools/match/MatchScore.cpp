#include "tools/match/MatchScore.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <numeric>
#include <set>

namespace brastel {

namespace {

/// 95 of 100 results of a normal distribution lie within as many standard deviations.
constexpr double Confidence = 1.959964;
/// The most extreme chance that lets all results be the same in 5 of 100 matches.
constexpr double Doubt = 0.05;

constexpr double PointsPerNaturalUnit = 400 / std::numbers::ln10;

double PointsOf(double score) { return PointsPerNaturalUnit * std::log(score / (1 - score)); }

double MeanOf(std::span<const double> values) {
    return std::accumulate(values.begin(), values.end(), 0.0) / static_cast<double>(values.size());
}

/// Of the mean of the values, from how they differ.
double StandardErrorOf(std::span<const double> values, double mean) {
    double squares = 0;
    for (const double value : values) squares += (value - mean) * (value - mean);
    const double count = static_cast<double>(values.size());
    return std::sqrt(squares / (count - 1) / count);
}

// ---- Results ----

/// For the first strength.
double ResultOf(const MatchGame& game) {
    if (game.Winner == Empty) return 0.5;
    return (game.Winner == Red) == game.FirstIsRed ? 1 : 0;
}

int OpeningOf(const MatchGame& game, bool paired) {
    return paired ? (game.Number + 1) / 2 : game.Number;
}

/// One for each opening.
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

Elo EloOf(std::span<const double> results) {
    if (results.empty()) return {};
    const double mean = MeanOf(results);
    const double furthest = std::pow(Doubt, 1 / static_cast<double>(results.size()));
    if (mean >= 1) return {PointsOf(furthest), 0, 1};
    if (mean <= 0) return {-PointsOf(furthest), 0, -1};
    // A single result tells nothing of how results differ: at worst as those of a coin do.
    const double error =
        results.size() > 1 ? StandardErrorOf(results, mean) : std::sqrt(mean * (1 - mean));
    return {PointsOf(mean), Confidence * error * PointsPerNaturalUnit / (mean * (1 - mean)), 0};
}

Elo Sum(const Elo& lower, const Elo& upper) {
    const int bound = lower.Bound != 0 ? lower.Bound : upper.Bound;
    return {lower.Points + upper.Points, std::hypot(lower.Error, upper.Error), bound};
}

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
        different.insert(game.Fingerprint);
    }
    score.Draws = score.Games - score.Wins - score.Losses;
    score.DifferentGames = static_cast<int>(different.size());
    score.First = TimeOf(games, true);
    score.Second = TimeOf(games, false);
    score.Difference = EloOf(ResultsOf(games, paired));
    return score;
}

}  // namespace brastel
