#include "tools/match/MatchTable.h"

#include "tools/match/StrengthName.h"
#include "tools/match/TableText.h"

#include <cinttypes>

namespace brastel {

namespace {

constexpr int LabelWidth = -25;
constexpr int ValueWidth = 20;

std::string Row(const char* label, const std::string& value) {
    return "| " + Padded(label, LabelWidth) + " | " + Padded(value, ValueWidth) + " |";
}

std::string Line(const char* label, const std::string& value) { return Row(label, value) + '\n'; }
std::string Line(const char* label, int value) { return Line(label, std::to_string(value)); }

std::string Line(const char* label, const std::string& first, const std::string& second) {
    return Row(label, first) + ' ' + Padded(second, ValueWidth) + " |\n";
}
std::string Line(const char* label, int first, int second) {
    return Line(label, std::to_string(first), std::to_string(second));
}

constexpr const char* OneColumn = "|---------------------------|---------------------:|";
constexpr const char* AnotherColumn = "---------------------:|";

std::string TableOfStrengths(const std::string& first, const std::string& second,
                             const MatchScore& score) {
    const double percent = 100 * MeanOf(score);
    return Line("", first, second) + OneColumn + AnotherColumn + '\n' +
           Line("wins", score.Wins, score.Losses) +
           Line("wins as Red", score.WinsAsRed, score.Losses - score.LossesAsRed) +
           Line("wins as Blue", score.Wins - score.WinsAsRed, score.LossesAsRed) +
           Line("score, %", Format("%.1f", percent),
                Format("%.1f", score.Games == 0 ? 0 : 100 - percent)) +
           Line("median time per move, ms", Milliseconds(score.First.MedianSeconds),
                Milliseconds(score.Second.MedianSeconds)) +
           Line("worst time per move, ms", Milliseconds(score.First.WorstSeconds),
                Milliseconds(score.Second.WorstSeconds));
}

std::string TableOfGames(const MatchScore& score) {
    return Line("games", score.Games) + OneColumn + '\n' +
           Line("different games", score.DifferentGames) +
           Line("draws by 200 entries", score.Draws) + Line("wins by Red", WinsByRed(score)) +
           Line("wins by Blue", WinsByBlue(score)) +
           Line("mean length, entries", Format("%.1f", score.MeanLength)) +
           Line("Elo difference, 95 %", EloText(score.Difference));
}

}  // namespace

std::string TermsText(const MatchTerms& terms) {
    return Format("%d pieces a side, seed %" PRIu64 ", %d random moves of each side first",
                  terms.Pieces, terms.Seed, terms.RandomMoves);
}

std::string MatchTable(const MatchTerms& terms, const MatchScore& score) {
    const bool areSame = terms.First == terms.Second;
    const std::string first = StrengthName(terms.First) + (areSame ? " (first)" : "");
    const std::string second = StrengthName(terms.Second) + (areSame ? " (second)" : "");
    return first + " against " + second + (terms.Alternates ? ", colours alternating, " : ", ") +
           TermsText(terms) + "\n\n" + TableOfStrengths(first, second, score) + '\n' +
           TableOfGames(score);
}

}  // namespace brastel
