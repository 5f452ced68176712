#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

/// Differences of strength in Elo points: two sides 400 points apart score as 10 to 1.
namespace brastel {

/// Who won every game may be better by any amount: then only a bound is known, or even nothing.
enum class Certainty { Estimate, AtLeast, AtMost, Unknown };

struct Elo {
    /// The estimate or the bound.
    double Points = 0;
    /// Of an estimate: half the width of the 95 % confidence interval.
    double Error = 0;
    Certainty Kind = Certainty::Estimate;
};

/// The difference that goes with the mean of all games, each from 0 if lost to 1 if won. The error
/// comes from how the results differ, by at least as much as if one of them had been half a point
/// away from the others; there games that depend on each other are one result, their mean. If all
/// games are lost or won, the bound that they overstep in only 5 of 100 matches. No results tell
/// nothing.
Elo EloOf(double mean, std::span<const double> results);

/// The difference from the lowest to the highest of three strengths. A bound is added to that end
/// of an estimate that it is safe with.
Elo Sum(const Elo& lower, const Elo& upper);

/// As in "+120 ± 35", "> 484" or "unknown".
std::string EloText(const Elo& elo);

/// What such a text says, or nothing if it is none.
std::optional<Elo> ReadElo(std::string_view text);

}  // namespace brastel
