#include "tools/match/MatchTable.h"

#include "engine/Strengths.h"

#include <algorithm>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <initializer_list>

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

/// A row of a table: a label and one or two values.
std::string Row(std::initializer_list<std::string> cells) {
    constexpr int LabelWidth = -25;
    constexpr int ValueWidth = 20;
    std::string row = "|";
    for (const std::string& cell : cells) {
        row += ' ' + Padded(cell, &cell == cells.begin() ? LabelWidth : ValueWidth) + " |";
    }
    return row + '\n';
}

constexpr const char* RuleBelowOne = "|---------------------------|---------------------:|\n";
constexpr const char* RuleBelowTwo =
    "|---------------------------|---------------------:|---------------------:|\n";

std::string Text(int number) { return std::to_string(number); }

std::string TableOfStrengths(const MatchTerms& terms, const MatchScore& score) {
    const double percent = score.Games == 0 ? 0 : 100 * MeanOf(score);
    const double other = score.Games == 0 ? 0 : 100 - percent;
    const auto& [mean, worst] = score.First;
    const auto& [otherMean, otherWorst] = score.Second;
    return Row({"", NameOf(terms, true), NameOf(terms, false)}) + RuleBelowTwo +
           Row({"wins", Text(score.Wins), Text(score.Losses)}) +
           Row({"wins as Red", Text(score.WinsAsRed), Text(score.Losses - score.LossesAsRed)}) +
           Row({"wins as Blue", Text(score.Wins - score.WinsAsRed), Text(score.LossesAsRed)}) +
           Row({"score, %", Format("%.1f", percent), Format("%.1f", other)}) +
           Row({"mean time per move, ms", Format("%.3f", mean), Format("%.3f", otherMean)}) +
           Row({"worst time per move, ms", Format("%.3f", worst), Format("%.3f", otherWorst)});
}

std::string TableOfGames(const MatchScore& score) {
    return Row({"games", Text(score.Games)}) + RuleBelowOne +
           Row({"different games", Text(score.DifferentGames)}) +
           Row({"draws by 200 entries", Text(score.Draws)}) +
           Row({"mean length, entries", Format("%.1f", score.MeanLength)}) +
           Row({"Elo difference, 95 %", EloText(score.Difference)});
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

std::string NameOf(const MatchTerms& terms, bool first) {
    const char* const which = terms.First != terms.Second ? "" : first ? " (first)" : " (second)";
    return StrengthName(first ? terms.First : terms.Second) + which;
}

std::string TermsText(const MatchTerms& terms) {
    return NameOf(terms, true) + " against " + NameOf(terms, false) + ", colours " +
           (terms.Alternates ? "alternating" : "fixed") +
           Format(", %d pieces a side, seed %" PRIu64 ", %d random moves of each side first",
                  terms.Pieces, terms.Seed, terms.RandomMoves);
}

std::string MatchTable(const MatchTerms& terms, const MatchScore& score) {
    return TermsText(terms) + "\n\n" + TableOfStrengths(terms, score) + '\n' + TableOfGames(score);
}

}  // namespace brastel
