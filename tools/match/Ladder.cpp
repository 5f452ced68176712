#include "tools/match/Ladder.h"

#include "tools/ReadNumber.h"
#include "tools/match/MatchTable.h"
#include "tools/match/StrengthName.h"
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
    cells[StepColumn] = EloText(score.Difference);
    cells[5] = Format("%d / %d / %d", score.Wins, score.Draws, score.Losses);
    cells[6] = Format("%d / %d", WinsByRed(score), WinsByBlue(score));
    cells[7] = std::to_string(score.DifferentGames);
    cells[8] = Format("%.1f", score.MeanLength);
    return cells;
}

void AddFoot(Ladder& ladder, Int16 level, const LadderCells& cells) {
    ladder.Rungs.push_back({level, {}, cells});
    // Not by a literal, at which gcc 12 sees an overlap that is none.
    ladder.Rungs.back().Cells[HeightColumn].assign(1, '0');
}

/// The height adds up from what the cells tell, so that a ladder stays the same when it is joined.
/// False if they tell no difference.
bool AddRung(Ladder& ladder, Int16 level, const LadderCells& cells) {
    const auto step = ReadElo(cells[StepColumn]);
    if (!step) return false;
    const Elo height = Sum(ladder.Rungs.back().Height, *step);
    ladder.Rungs.push_back({level, height, cells});
    ladder.Rungs.back().Cells[HeightColumn] = EloText(height);
    return true;
}

// ---- Reading ----

std::string Trimmed(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The cells of a line of the table; none if it has not got as many.
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
           (ladder.Rungs.empty() ? "anything" : StrengthName(ladder.Rungs.back().Level));
}

/// The rows of one text, which begins at its foot. Each operation returns what is wrong, or
/// nothing.
class Part {
public:
    explicit Part(Ladder& ladder) : Whole(ladder) {}

    std::string Begin(const std::string& terms) {
        HasTerms = true;
        if (Whole.Rungs.empty()) Whole.Terms = terms;
        if (terms == Whole.Terms) return {};
        return "its terms are \"" + terms + "\" and not \"" + Whole.Terms + '"';
    }
    /// Numbers above the captions belong to something else.
    std::string Join(Int16 level, const LadderCells& cells) {
        if (!HasTerms) return {};
        const bool isFoot = cells[StepColumn].empty();
        if (isFoot && Whole.Rungs.empty()) AddFoot(Whole, level, cells);
        const bool follows =
            (isFoot || HasFoot) && Whole.Rungs.back().Level == (isFoot ? level : level - 1);
        if (!follows) return DoesNotFollow(Whole, level);
        HasFoot = true;
        if (isFoot || AddRung(Whole, level, cells)) return {};
        return "how much stronger " + StrengthName(level) + " is cannot be read";
    }
    bool IsEmpty() const { return !HasFoot; }

private:
    Ladder& Whole;
    bool HasTerms = false;
    bool HasFoot = false;
};

}  // namespace

Ladder BeginLadder(const MatchTerms& terms) {
    return {"Each strength against the one below, colours alternating, " + TermsText(terms), {}};
}

void AddMatch(Ladder& ladder, const MatchTerms& terms, const MatchScore& score) {
    if (ladder.Rungs.empty()) AddFoot(ladder, terms.Second, CellsOf(terms.Second, score.Second));
    AddRung(ladder, terms.First, CellsOf(terms.First, score));
}

std::string LadderHead(const Ladder& ladder) {
    return ladder.Terms + "\n\n" + TableLine(Captions) + RuleBelowCaptions();
}

std::string LadderRow(const Rung& rung) { return TableLine(rung.Cells); }

std::string LadderText(const Ladder& ladder) {
    std::string text = LadderHead(ladder);
    for (const Rung& rung : ladder.Rungs) text += LadderRow(rung);
    return text;
}

std::string JoinLadder(Ladder& ladder, const std::string& text) {
    std::istringstream lines(text);
    Part part(ladder);
    for (std::string line, last; std::getline(lines, line);) {
        const auto cells = ReadCells(line);
        std::string wrong;
        const auto level = cells ? ReadNumber((*cells)[LevelColumn], 1, MaxPly) : std::nullopt;
        if (level) wrong = part.Join(ToInt16(static_cast<int>(*level)), *cells);
        // The terms are the last line before the table.
        if (cells && *cells == Captions) wrong = part.Begin(last);
        if (!wrong.empty()) return wrong;
        if (!Trimmed(line).empty()) last = Trimmed(line);
    }
    return part.IsEmpty() ? "there is no ladder in it" : "";
}

}  // namespace brastel
