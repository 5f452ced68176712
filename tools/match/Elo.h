#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Differences of strength in Elo points. With a difference of 400 points, the scores are 10 to 1.
namespace brastel {

/// If one side won all games, only a bound of the difference is known. Sums of bounds can be
/// unknown.
enum class Certainty { Estimate, AtLeast, AtMost, Unknown };

struct Elo {
    /// The estimate or the bound.
    double Points = 0;
    /// For an estimate, half the width of the 95 % confidence interval.
    double Error = 0;
    Certainty Kind = Certainty::Estimate;
};

/// The difference for the mean score of all games (lost 0, won 1). `results` has one value for each
/// group of games that depend on each other: their mean. The error follows from the spread of the
/// results, which counts at least as if one result were half a point away from the others. If all
/// games were lost or won, the result is a bound: a smaller true difference would cause this in at
/// most 5 of 100 matches. Without results the difference is unknown.
Elo EloOf(double mean, std::span<const double> results);

/// The difference between the lowest and the highest of three strengths. If one of the two
/// differences is a bound, so is the sum: it counts the other one at the end of its confidence
/// interval.
Elo Sum(const Elo& lower, const Elo& upper);

/// For example "+120 ± 35", "> 484" or "unknown".
std::string EloText(const Elo& elo);

/// Reads such a text. Nothing if the text has another form.
std::optional<Elo> ReadElo(std::string_view text);

}  // namespace brastel
