#include "tools/match/Ladder.h"

#include "engine/Strengths.h"
#include "tools/ReadNumber.h"
#include "tools/match/MatchTable.h"
#include "tools/match/TableText.h"

#include <cstdlib>
#include <sstream>

namespace brastel {

namespace {

const LadderCells Captions{"level",       "strength",       "score, %",     "difference",
                           "ladder",      "won/drawn/lost", "Red/Blue won", "different",
                           "mean length", "median ms",      "worst ms"};
constexpr std::array<int, LadderColumns> Widths{5, -11, 8, 11, 12, 15, 14, 9, 11, 9, 8};

std::string TableLine(const LadderCells& cells) {
    std::string line = "|";
    for (std::size_t n = 0; n < cells.size(); ++n) line += ' ' + Padded(cells[n], Widths[n]) + " |";
    return line + '\n';
}

std::string RuleBelowCaptions() {
    std::string line = "|";
    for (const int width : Widths) {
        const std::string dashes(static_cast<std::size_t>(std::abs(width)) + 1, '-');
        line += dashes + (width < 0 ? "-|" : ":|");
    }
    return line + '\n';
}

LadderCells CellsOf(Int16 level, const ThinkingTime& time) {
    LadderCells cells;
    cells[LevelColumn] = std::to_string(level);
    cells[NameColumn] = StrengthName(level);
    cells[9] = Milliseconds(time.MedianSeconds);
    cells[10] = Milliseconds(time.WorstSeconds);
    return cells;
}

LadderCells CellsOf(Int16 level, const MatchScore& score) {
    LadderCells cells = CellsOf(level, score.First);
    cells[ScoreColumn] = Format("%.1f", 100 * MeanOf(score));
    cells[DifferenceColumn] = EloText(score.Difference);
    cells[5] = Format("%d / %d / %d", score.Wins, score.Draws, score.Losses);
    cells[6] = Format("%d / %d", WinsByRed(score), WinsByBlue(score));
    cells[7] = std::to_string(score.DifferentGames);
    cells[8] = Format("%.1f", score.MeanLength);
    return cells;
}

void AddLowest(Ladder& ladder, Int16 level, const LadderCells& cells) {
    ladder.Entries.push_back({level, {}, cells});
    // Not ="0": gcc 12 wrongly warns of overlapping memory.
    ladder.Entries.back().Cells[RatingColumn].assign(1, '0');
}

/// The rating is the sum of the differences in the cells, as rounded there, so a joined ladder
/// equals one that was played at once. False if a cell has no difference.
bool AddEntry(Ladder& ladder, Int16 level, const LadderCells& cells) {
    const auto step = ReadElo(cells[DifferenceColumn]);
    if (!step) return false;
    const Elo rating = Sum(ladder.Entries.back().Rating, *step);
    ladder.Entries.push_back({level, rating, cells});
    ladder.Entries.back().Cells[RatingColumn] = EloText(rating);
    return true;
}

// ---- Reading ----

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The cells of a line of the table. Nothing if their number is wrong.
std::optional<LadderCells> ReadCells(const std::string& line) {
    std::istringstream rest(Trimmed(line));
    LadderCells cells;
    std::string cell;
    if (!std::getline(rest, cell, '|') || !cell.empty()) return std::nullopt;
    for (std::string& place : cells) {
        if (!std::getline(rest, cell, '|') || rest.eof()) return std::nullopt;
        place = Trimmed(cell);
    }
    return std::getline(rest, cell) ? std::nullopt : std::optional(cells);
}

std::string DoesNotFollow(const Ladder& ladder, int level) {
    return StrengthName(level) + " does not follow on " +
           (ladder.Entries.empty() ? "anything" : StrengthName(ladder.Entries.back().Level));
}

/// Adds the rows of one text to a ladder. Each operation returns the error, or nothing.
class LadderReader {
public:
    explicit LadderReader(Ladder& ladder) : Whole(ladder) {}

    std::string Begin(const std::string& terms) {
        HasTerms = true;
        if (Whole.Entries.empty()) Whole.Terms = terms;
        if (terms == Whole.Terms) return {};
        return "its terms are \"" + terms + "\" and not \"" + Whole.Terms + '"';
    }
    /// Rows before the captions belong to another table and are ignored.
    std::string Join(Int16 level, const LadderCells& cells) {
        if (!HasTerms) return {};
        const bool isLowest = cells[DifferenceColumn].empty();
        if (isLowest && Whole.Entries.empty()) AddLowest(Whole, level, cells);
        const bool follows =
            (isLowest || HasLowest) && Whole.Entries.back().Level == (isLowest ? level : level - 1);
        if (!follows) return DoesNotFollow(Whole, level);
        HasLowest = true;
        if (isLowest || AddEntry(Whole, level, cells)) return {};
        return "how much stronger " + StrengthName(level) + " is cannot be read";
    }
    bool IsEmpty() const { return !HasLowest; }

private:
    Ladder& Whole;
    bool HasTerms = false;
    bool HasLowest = false;
};

}  // namespace

Ladder BeginLadder(const MatchTerms& terms) {
    return {"Each strength against the one below, colours alternating, " + TermsText(terms), {}};
}

void AddMatch(Ladder& ladder, const MatchTerms& terms, const MatchScore& score) {
    if (ladder.Entries.empty())
        AddLowest(ladder, terms.Second, CellsOf(terms.Second, score.Second));
    AddEntry(ladder, terms.First, CellsOf(terms.First, score));
}

std::string LadderHead(const Ladder& ladder) {
    return ladder.Terms + "\n\n" + TableLine(Captions) + RuleBelowCaptions();
}

std::string LadderRow(const LadderEntry& entry) { return TableLine(entry.Cells); }

std::string LadderText(const Ladder& ladder) {
    std::string text = LadderHead(ladder);
    for (const LadderEntry& entry : ladder.Entries) text += LadderRow(entry);
    return text;
}

std::string JoinLadder(Ladder& ladder, const std::string& text) {
    std::istringstream lines(text);
    LadderReader reader(ladder);
    for (std::string line, last; std::getline(lines, line);) {
        const auto cells = ReadCells(line);
        std::string wrong;
        const auto level = cells ? ReadNumber((*cells)[LevelColumn], 1, MaxPly) : std::nullopt;
        if (level) wrong = reader.Join(ToInt16(static_cast<int>(*level)), *cells);
        // The terms are the last line before the table.
        if (cells && *cells == Captions) wrong = reader.Begin(last);
        if (!wrong.empty()) return wrong;
        if (!Trimmed(line).empty()) last = Trimmed(line);
    }
    return reader.IsEmpty() ? "there is no ladder in it" : "";
}

}  // namespace brastel
