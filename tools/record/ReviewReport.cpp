#include "engine/Strengths.h"
#include "play/Words.h"
#include "tools/record/Report.h"
#include "tools/record/Review.h"

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

int LossOf(const GameReview& review, int side) {
    int sum = 0;
    for (const ReviewedEntry& entry : review.Entries) sum += entry.Side == side ? entry.Loss : 0;
    return sum;
}

// ---- Text ----

std::string ShortSquare(int square) {
    return std::to_string(Row(square) + 1) + ',' + std::to_string(Column(square) + 1);
}

std::string ShortMove(const Action& action) {
    return ShortSquare(action.Origin) + '-' + ShortSquare(action.Destination);
}

std::string TableRow(int number, const ReviewedEntry& entry) {
    const auto [side, played, hasValue, value, bestValue, best, loss, isWorst] = entry;
    std::ostringstream row;
    row << std::setw(4) << number << ". " << std::left << std::setw(6) << SideInWords(side);
    if (!hasValue) {
        row << (played == NullMove ? "pass" : ShortSquare(played.Origin) + " ring");
    } else {
        row << std::setw(11) << ShortMove(played) << std::right << std::setw(9)
            << ValueInWords(value);
    }
    if (best != played) {
        row << "   " << std::left << std::setw(11) << ShortMove(best) << std::right << std::setw(9)
            << ValueInWords(bestValue) << std::setw(8) << Points(loss) << (isWorst ? " *" : "");
    }
    return row.str() + '\n';
}

std::string SideReport(const RecordedGame& game, const GameReview& review, int side) {
    std::string worst;
    int number = 0;
    for (const ReviewedEntry& entry : review.Entries) {
        ++number;
        if (entry.IsWorst && entry.Side == side)
            worst += '\n' + MistakeInWords(game, number, entry);
    }
    return '\n' + SideInWords(side) + " lost " + Points(LossOf(review, side)) + " points." +
           (worst.empty() ? "" : " The worst moves (*):" + worst) + '\n';
}

// ---- JSON ----

std::string Pair(const Action& action) {
    return '[' + std::to_string(action.Origin) + ", " + std::to_string(action.Destination) + ']';
}

std::string EntryAsJson(int number, const ReviewedEntry& entry) {
    std::ostringstream json;
    json << R"({"entry": )" << number << R"(, "side": ")" << SideInWords(entry.Side)
         << R"(", "played": )" << Pair(entry.Played);
    if (entry.HasValue) {
        json << R"(, "value": )" << Points(entry.Value, 2) << R"(, "best": )" << Pair(entry.Best)
             << R"(, "best_value": )" << Points(entry.BestValue, 2) << R"(, "loss": )"
             << Points(entry.Loss, 2) << R"(, "worst": )" << (entry.IsWorst ? "true" : "false");
    }
    return json.str() + '}';
}

}  // namespace

std::string ValueInWords(RedValue value) {
    if (const Int16 winner = ExpectedWinner(value)) return SideInWords(winner) + " wins";
    return value > 0 ? '+' + Points(value) : Points(value);
}

std::string MistakeInWords(const RecordedGame& game, int number, const ReviewedEntry& entry) {
    return "Entry " + std::to_string(number) + " loses " + Points(entry.Loss) +
           " points: " + EntryInWords(game, number) + ". Better: from " +
           SquareInWords(entry.Best.Origin) + " to " + SquareInWords(entry.Best.Destination) + '.';
}

std::string ReviewAsText(const RecordedGame& game, const GameReview& review) {
    std::string text = "Values by " + StrengthName(review.Depth) +
                       " in points, above 0 good for Red, below 0 for Blue\n\n";
    text += "            move           value   better        value    loss\n";
    int number = 0;
    for (const ReviewedEntry& entry : review.Entries) text += TableRow(++number, entry);
    return text + SideReport(game, review, Red) + SideReport(game, review, Blue);
}

std::string ReviewAsJson(const GameReview& review) {
    std::ostringstream json;
    json << R"({"strength": ")" << StrengthName(review.Depth) << R"(", "depth": )" << review.Depth
         << ",\n\"lost\": {\"Red\": " << Points(LossOf(review, Red), 2)
         << ", \"Blue\": " << Points(LossOf(review, Blue), 2) << "},\n\"entries\": [";
    int number = 0;
    for (const ReviewedEntry& entry : review.Entries) {
        json << (number++ == 0 ? "\n" : ",\n");
        json << EntryAsJson(number, entry);
    }
    return json.str() + "\n]}\n";
}

}  // namespace brastel
