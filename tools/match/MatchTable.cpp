#include "tools/match/MatchTable.h"

#include "engine/Strengths.h"

#include <algorithm>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace brastel {

namespace {

/// Like printf, at most 255 bytes.
[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...) {
    char text[256];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

/// Adds spaces on the left up to this width in characters, or on the right if the width is
/// negative. Longer text does not change.
std::string Padded(const std::string& text, int width) {
    const auto begins = [](char byte) { return (byte & 0xC0) != 0x80; };
    const auto characters = static_cast<int>(std::ranges::count_if(text, begins));
    const std::string spaces(static_cast<std::size_t>(std::max(0, std::abs(width) - characters)),
                             ' ');
    return width < 0 ? text + spaces : spaces + text;
}

std::string Milliseconds(double seconds) { return Format("%.3f", seconds * 1000); }

constexpr int LabelWidth = -25;
constexpr int ValueWidth = 20;

std::string LeftCells(const char* label, const std::string& value) {
    return "| " + Padded(label, LabelWidth) + " | " + Padded(value, ValueWidth) + " |";
}

std::string Row(const char* label, const std::string& value) {
    return LeftCells(label, value) + '\n';
}
std::string Row(const char* label, int value) { return Row(label, std::to_string(value)); }

std::string Row(const char* label, const std::string& first, const std::string& second) {
    return LeftCells(label, first) + ' ' + Padded(second, ValueWidth) + " |\n";
}
std::string Row(const char* label, int first, int second) {
    return Row(label, std::to_string(first), std::to_string(second));
}

constexpr const char* RuleBelowOne = "|---------------------------|---------------------:|";
constexpr const char* RuleBelowSecond = "---------------------:|";

std::string TableOfStrengths(const std::string& first, const std::string& second,
                             const MatchScore& score) {
    const double percent = 100 * MeanOf(score);
    return Row("", first, second) + RuleBelowOne + RuleBelowSecond + '\n' +
           Row("wins", score.Wins, score.Losses) +
           Row("wins as Red", score.WinsAsRed, score.Losses - score.LossesAsRed) +
           Row("wins as Blue", score.Wins - score.WinsAsRed, score.LossesAsRed) +
           Row("score, %", Format("%.1f", percent),
               Format("%.1f", score.Games == 0 ? 0 : 100 - percent)) +
           Row("median time per move, ms", Milliseconds(score.First.MedianSeconds),
               Milliseconds(score.Second.MedianSeconds)) +
           Row("worst time per move, ms", Milliseconds(score.First.WorstSeconds),
               Milliseconds(score.Second.WorstSeconds));
}

std::string TableOfGames(const MatchScore& score) {
    return Row("games", score.Games) + RuleBelowOne + '\n' +
           Row("different games", score.DifferentGames) + Row("draws by 200 entries", score.Draws) +
           Row("wins by Red", WinsByRed(score)) + Row("wins by Blue", WinsByBlue(score)) +
           Row("mean length, entries", Format("%.1f", score.MeanLength)) +
           Row("Elo difference, 95 %", EloText(score.Difference));
}

}  // namespace

std::string EloText(const Elo& elo) {
    switch (elo.Kind) {
        case Certainty::Estimate:
            return Format("%+.0f ± %.0f", elo.Points, elo.Error);
        case Certainty::AtLeast:
            return Format("> %.0f", elo.Points);
        case Certainty::AtMost:
            return Format("< %.0f", elo.Points);
        case Certainty::Unknown:
            break;
    }
    return "unknown";
}

std::string TermsText(const MatchTerms& terms) {
    return Format("%d pieces a side, seed %" PRIu64 ", %d random moves of each side first",
                  terms.Pieces, terms.Seed, terms.RandomMoves);
}

std::string MatchTable(const MatchTerms& terms, const MatchScore& score) {
    const bool areSame = terms.First == terms.Second;
    const std::string first = StrengthName(terms.First) + (areSame ? " (first)" : "");
    const std::string second = StrengthName(terms.Second) + (areSame ? " (second)" : "");
    return first + " against " + second +
           (terms.Alternates ? ", colours alternating, " : ", colours fixed, ") + TermsText(terms) +
           "\n\n" + TableOfStrengths(first, second, score) + '\n' + TableOfGames(score);
}

}  // namespace brastel
