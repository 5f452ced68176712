#include "tools/match/MatchTable.h"

#include "tools/match/SavedGames.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace brastel {

namespace {

[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...) {
    char text[256];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

std::string Milliseconds(double seconds) { return Format("%.3f", seconds * 1000); }

/// Characters, of which some take two bytes.
int WidthOf(const std::string& text) {
    return static_cast<int>(
        std::ranges::count_if(text, [](char byte) { return (byte & 0xC0) != 0x80; }));
}

/// Filled up on the left, or for a negative width on the right.
std::string Padded(const std::string& text, int width) {
    const std::string spaces(static_cast<std::size_t>(std::max(0, std::abs(width) - WidthOf(text))),
                             ' ');
    return width < 0 ? text + spaces : spaces + text;
}

std::string TermsText(const MatchTerms& terms) {
    return Format("%d pieces a side, seed %" PRIu64 ", %d random moves of each side first",
                  terms.Pieces, terms.Seed, terms.RandomMoves);
}

constexpr std::array<int, 11> LadderWidths{5, -11, 8, 11, 12, 15, 14, 9, 11, 9, 8};

std::string TableLine(const std::array<std::string, LadderWidths.size()>& cells) {
    std::string line = "|";
    for (std::size_t n = 0; n < cells.size(); ++n) {
        line += ' ' + Padded(cells[n], LadderWidths[n]) + " |";
    }
    return line + '\n';
}

double ShareOf(const MatchScore& score) {
    return score.Games == 0 ? 0 : 100 * (score.Wins + score.Draws / 2.0) / score.Games;
}

}  // namespace

std::string EloText(const Elo& elo) {
    if (elo.Bound > 0) return Format("> %.0f", elo.Points);
    if (elo.Bound < 0) return Format("< %.0f", elo.Points);
    return Format("%+.0f ± %.0f", elo.Points, elo.Error);
}

std::string MatchTable(const MatchTerms& terms, const MatchScore& score) {
    const bool areSame = terms.First == terms.Second;
    const std::string first = StrengthName(terms.First) + (areSame ? " (first)" : "");
    const std::string second = StrengthName(terms.Second) + (areSame ? " (second)" : "");
    std::string table = first + " against " + second + ", " + TermsText(terms) +
                        (terms.Alternates ? ", colours alternating" : "") + "\n\n";
    const auto addRow = [&](const char* what, const std::string& left, const std::string& right) {
        table += "| " + Padded(what, -25) + " | " + Padded(left, 20) + " | " + Padded(right, 20) +
                 " |\n";
    };
    const auto addCounts = [&](const char* what, int left, int right) {
        addRow(what, std::to_string(left), std::to_string(right));
    };
    addRow("", first, second);
    table += "|---------------------------|---------------------:|---------------------:|\n";
    const int secondAsRed = score.Losses - score.LossesAsRed;
    addCounts("wins", score.Wins, score.Losses);
    addCounts("wins as Red", score.WinsAsRed, secondAsRed);
    addCounts("wins as Blue", score.Wins - score.WinsAsRed, score.LossesAsRed);
    addRow("score, %", Format("%.1f", ShareOf(score)),
           Format("%.1f", score.Games == 0 ? 0 : 100 - ShareOf(score)));
    addRow("median time per move, ms", Milliseconds(score.First.MedianSeconds),
           Milliseconds(score.Second.MedianSeconds));
    addRow("worst time per move, ms", Milliseconds(score.First.WorstSeconds),
           Milliseconds(score.Second.WorstSeconds));
    table += '\n';
    const auto addLine = [&](const char* what, const std::string& value) {
        table += "| " + Padded(what, -25) + " | " + Padded(value, 20) + " |\n";
    };
    addLine("games", std::to_string(score.Games));
    table += "|---------------------------|---------------------:|\n";
    addLine("different games", std::to_string(score.DifferentGames));
    addLine("draws by 200 entries", std::to_string(score.Draws));
    addLine("wins by Red", std::to_string(score.WinsAsRed + secondAsRed));
    addLine("wins by Blue", std::to_string(score.Wins - score.WinsAsRed + score.LossesAsRed));
    addLine("mean length, entries", Format("%.1f", score.MeanLength));
    addLine("Elo difference, 95 %", EloText(score.Difference));
    return table;
}

void AddRung(std::vector<Rung>& ladder, const MatchTerms& terms, const MatchScore& score) {
    if (ladder.empty()) ladder.push_back({terms.Second, {}, {}, score.Second});
    const Elo height = Sum(ladder.back().Height, score.Difference);
    ladder.push_back({terms.First, score, height, score.First});
}

std::string LadderTableHead(const MatchTerms& terms, int games) {
    return "Each strength against the one below, " + std::to_string(games) +
           " games, colours alternating, " + TermsText(terms) + "\n\n" +
           TableLine({"level", "strength", "score, %", "difference", "ladder", "won/drawn/lost",
                      "Red/Blue won", "different", "mean length", "median ms", "worst ms"}) +
           "|------:|-------------|---------:|------------:|-------------:|----------------:|"
           "---------------:|----------:|------------:|----------:|---------:|\n";
}

std::string LadderTableRow(const Rung& rung) {
    const MatchScore& score = rung.BelowScore;
    const std::string level = std::to_string(rung.Level);
    const std::string median = Milliseconds(rung.Time.MedianSeconds);
    const std::string worst = Milliseconds(rung.Time.WorstSeconds);
    if (score.Games == 0) {
        return TableLine(
            {level, StrengthName(rung.Level), "", "", "0", "", "", "", "", median, worst});
    }
    const int redWins = score.WinsAsRed + score.Losses - score.LossesAsRed;
    return TableLine(
        {level, StrengthName(rung.Level), Format("%.1f", ShareOf(score)), EloText(score.Difference),
         EloText(rung.Height), Format("%d / %d / %d", score.Wins, score.Draws, score.Losses),
         Format("%d / %d", redWins, score.Wins + score.Losses - redWins),
         std::to_string(score.DifferentGames), Format("%.1f", score.MeanLength), median, worst});
}

}  // namespace brastel
