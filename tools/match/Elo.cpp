#include "tools/match/Elo.h"

#include "tools/match/TableText.h"

#include <algorithm>
#include <array>
#include <charconv>
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
/// Limit for points that are read, more than any match gives.
constexpr double MaxPoints = 100000;

constexpr double PointsPerNaturalUnit = 400 / std::numbers::ln10;

double PointsOf(double score) { return PointsPerNaturalUnit * std::log(score / (1 - score)); }

/// The standard error of the mean of the results.
double StandardErrorOf(std::span<const double> results, double mean) {
    double squares = 0;
    for (const double result : results) squares += (result - mean) * (result - mean);
    const double count = static_cast<double>(results.size());
    return std::sqrt(std::max(squares, MinSumOfSquares) / std::max(count - 1, 1.0) / count);
}

Certainty KindOfSum(Certainty a, Certainty b) {
    if (a == b || b == Certainty::Estimate) return a;
    return a == Certainty::Estimate ? b : Certainty::Unknown;
}

// ---- Text ----

struct Sign {
    std::string_view Text;
    Certainty Kind;
};
constexpr std::array<Sign, 2> Signs{{{"> ", Certainty::AtLeast}, {"< ", Certainty::AtMost}}};
constexpr std::string_view ErrorSign = " ± ";
constexpr std::string_view UnknownText = "unknown";

std::optional<double> ReadPoints(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    double points = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, points);
    // The comparison is false for NaN.
    const bool isRight = error == std::errc() && stop == end && std::abs(points) <= MaxPoints;
    return isRight ? std::optional(points) : std::nullopt;
}

}  // namespace

Elo EloOf(double mean, std::span<const double> results) {
    if (results.empty()) return {0, 0, Certainty::Unknown};
    const double bound = PointsOf(std::pow(ErrorRate, 1 / static_cast<double>(results.size())));
    if (mean >= 1) return {bound, 0, Certainty::AtLeast};
    if (mean <= 0) return {-bound, 0, Certainty::AtMost};
    const double slope = PointsPerNaturalUnit / (mean * (1 - mean));
    return {PointsOf(mean), Deviations * slope * StandardErrorOf(results, mean),
            Certainty::Estimate};
}

Elo Sum(const Elo& lower, const Elo& upper) {
    const double points = lower.Points + upper.Points;
    const Certainty kind = KindOfSum(lower.Kind, upper.Kind);
    if (kind == Certainty::AtLeast) return {points - lower.Error - upper.Error, 0, kind};
    if (kind == Certainty::AtMost) return {points + lower.Error + upper.Error, 0, kind};
    return {points, std::hypot(lower.Error, upper.Error), kind};
}

std::string EloText(const Elo& elo) {
    if (elo.Kind == Certainty::Unknown) return std::string(UnknownText);
    for (const Sign& sign : Signs) {
        if (elo.Kind == sign.Kind) return std::string(sign.Text) + Format("%.0f", elo.Points);
    }
    return Format("%+.0f", elo.Points) + std::string(ErrorSign) + Format("%.0f", elo.Error);
}

std::optional<Elo> ReadElo(std::string_view text) {
    if (text == UnknownText) return Elo{0, 0, Certainty::Unknown};
    for (const Sign& sign : Signs) {
        if (!text.starts_with(sign.Text)) continue;
        const auto points = ReadPoints(text.substr(sign.Text.size()));
        return points ? std::optional(Elo{*points, 0, sign.Kind}) : std::nullopt;
    }
    const std::size_t middle = text.find(ErrorSign);
    if (middle == std::string_view::npos) return std::nullopt;
    const auto points = ReadPoints(text.substr(0, middle));
    const auto error = ReadPoints(text.substr(middle + ErrorSign.size()));
    if (!points || !error || *error < 0) return std::nullopt;
    return Elo{*points, *error, Certainty::Estimate};
}

}  // namespace brastel
