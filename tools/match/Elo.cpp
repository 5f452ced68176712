#include "tools/match/Elo.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace brastel {

namespace {

/// 95 of 100 values of a normal distribution are within this number of standard deviations.
constexpr double Deviations = 1.959964;
/// How often a smaller true difference may lead to the same bound.
constexpr double ErrorRate = 0.05;
/// Half a point, squared.
constexpr double MinSumOfSquares = 0.25;

constexpr double PointsPerNaturalUnit = 400 / std::numbers::ln10;

double PointsOf(double score) { return PointsPerNaturalUnit * std::log(score / (1 - score)); }

/// The standard error of the mean of the results.
double StandardErrorOf(std::span<const double> results, double mean) {
    double squares = 0;
    for (const double result : results) squares += (result - mean) * (result - mean);
    const double count = static_cast<double>(results.size());
    return std::sqrt(std::max(squares, MinSumOfSquares) / std::max(count - 1, 1.0) / count);
}

}  // namespace

Elo EloOf(double mean, std::span<const double> results) {
    const double bound = PointsOf(std::pow(ErrorRate, 1 / static_cast<double>(results.size())));
    if (mean >= 1) return {bound, 0, Certainty::AtLeast};
    if (mean <= 0) return {-bound, 0, Certainty::AtMost};
    const double slope = PointsPerNaturalUnit / (mean * (1 - mean));
    return {PointsOf(mean), Deviations * slope * StandardErrorOf(results, mean),
            Certainty::Estimate};
}

}  // namespace brastel
