#pragma once

#include <span>

/// Differences of strength in Elo points. With a difference of 400 points, the scores are 10 to 1.
namespace brastel {

/// If one side won all games, only a bound of the difference is known.
enum class Certainty { Estimate, AtLeast, AtMost, Unknown };

struct Elo {
    /// The estimate or the bound.
    double Points = 0;
    /// For an estimate, half the width of the 95 % confidence interval.
    double Error = 0;
    Certainty Kind = Certainty::Unknown;
};

/// The difference for the mean score of all games (lost 0, won 1). `results` has one value for each
/// group of games that depend on each other: their mean. There must be at least one. The error
/// follows from the spread of the results, which counts at least as if one result were half a point
/// away from the others. If all games were lost or won, the result is a bound: a smaller true
/// difference would cause this in at most 5 of 100 matches.
Elo EloOf(double mean, std::span<const double> results);

}  // namespace brastel
