#include "tools/record/ReviewReport.h"

#include "engine/Strengths.h"
#include "play/Words.h"
#include "tools/record/Report.h"

#include <cmath>
#include <iomanip>
#include <sstream>

namespace brastel {

namespace {

/// With one digit after the point, or two for programs.
std::string Points(int units, int digits = 1) {
    const double factor = digits == 1 ? 10 : 100;
    std::ostringstream text;
    // The sum makes 0 of -0.
    text << std::fixed << std::setprecision(digits)
         << std::round(units * factor / UnitsPerPoint) / factor + 0.0;
    return text.str();
}

// ---- Text ----

std::string ShortSquare(int square) {
    return std::to_string(Row(square) + 1) + ',' + std::to_string(Column(square) + 1);
}

std::string ShortMove(const Action& action) {
    return ShortSquare(action.Origin) + '-' + ShortSquare(action.Destination);
}

/// An entry without a choice: a ring placement, whose second number means nothing, or a pass.
std::string OtherEntry(const Action& action) {
    return action == NullMove ? "pass" : ShortSquare(action.Origin) + " ring";
}

std::string TableRow(int number, const ReviewedEntry& entry) {
    std::ostringstream row;
    row << std::setw(4) << number << ". " << std::left << std::setw(6) << SideInWords(entry.Side);
    if (!entry.Made) return row.str() + OtherEntry(entry.Played) + '\n';
    const Choice& made = *entry.Made;
    row << std::setw(11) << ShortMove(entry.Played) << std::right << std::setw(9)
        << ValueInWords(made.Played);
    if (made.BestMove == entry.Played) return row.str() + '\n';
    row << "   " << std::left << std::setw(11) << ShortMove(made.BestMove) << std::right
        << std::setw(9) << ValueInWords(made.Best) << std::setw(8) << Points(made.Loss)
        << (entry.IsWorst ? " *" : "");
    return row.str() + '\n';
}

int LossOf(const GameReview& review, int side) {
    int sum = 0;
    for (const auto& [mover, played, made, isWorst] : review.Entries) {
        if (mover == side && made) sum += made->Loss;
    }
    return sum;
}

std::string SideReport(const RecordedGame& game, const GameReview& review, int side) {
    const int loss = LossOf(review, side);
    std::string text = '\n' + SideInWords(side) + " lost " + Points(loss) + " points.";
    text += loss > 0 ? " The worst moves (*):\n" : "\n";
    for (int k = 1; k <= std::ssize(review.Entries); ++k) {
        const ReviewedEntry& entry = review.Entries[static_cast<std::size_t>(k - 1)];
        if (entry.IsWorst && entry.Side == side) text += MistakeInWords(game, review, k) + '\n';
    }
    return text;
}

}  // namespace

std::string ValueInWords(RedValue value) {
    if (const Int16 winner = ExpectedWinner(value)) return SideInWords(winner) + " wins";
    return value > 0 ? '+' + Points(value) : Points(value);
}

std::string MistakeInWords(const RecordedGame& game, const GameReview& review, int entry) {
    const Choice& made = *review.Entries[static_cast<std::size_t>(entry - 1)].Made;
    return "Entry " + std::to_string(entry) + " loses " + Points(made.Loss) +
           " points: " + EntryInWords(game, entry) + ". Better: from " +
           SquareInWords(made.BestMove.Origin) + " to " + SquareInWords(made.BestMove.Destination) +
           '.';
}

std::string ReviewAsText(const RecordedGame& game, const GameReview& review) {
    std::string text = "Values by " + StrengthName(review.Depth) +
                       " in points, above 0 good for Red, below 0 for Blue\n\n";
    text += "            move           value   better        value    loss\n";
    int number = 0;
    for (const ReviewedEntry& entry : review.Entries) text += TableRow(++number, entry);
    return text + SideReport(game, review, Red) + SideReport(game, review, Blue);
}

// ---- JSON ----

namespace {

std::string Pair(const Action& action) {
    return '[' + std::to_string(action.Origin) + ", " + std::to_string(action.Destination) + ']';
}

std::string EntryAsJson(int number, const ReviewedEntry& entry) {
    std::ostringstream json;
    json << R"(    {"entry": )" << number << R"(, "side": ")" << SideInWords(entry.Side)
         << R"(", "played": )" << Pair(entry.Played);
    if (entry.Made) {
        json << R"(, "value": )" << Points(entry.Made->Played, 2) << R"(, "best": )"
             << Pair(entry.Made->BestMove) << R"(, "best_value": )" << Points(entry.Made->Best, 2)
             << R"(, "loss": )" << Points(entry.Made->Loss, 2) << R"(, "worst": )"
             << (entry.IsWorst ? "true" : "false");
    }
    return json.str() + '}';
}

}  // namespace

std::string ReviewAsJson(const GameReview& review) {
    std::ostringstream json;
    json << "{\n  \"strength\": \"" << StrengthName(review.Depth)
         << "\",\n  \"depth\": " << review.Depth << ",\n  \"entries\": [";
    int number = 0;
    for (const ReviewedEntry& entry : review.Entries) {
        json << (number == 0 ? "\n" : ",\n") << EntryAsJson(number + 1, entry);
        ++number;
    }
    json << "\n  ],\n  \"lost\": {\"Red\": " << Points(LossOf(review, Red), 2)
         << ", \"Blue\": " << Points(LossOf(review, Blue), 2) << "}\n}\n";
    return json.str();
}

}  // namespace brastel
