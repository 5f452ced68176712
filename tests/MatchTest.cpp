#include "core/StartPosition.h"
#include "play/GameState.h"
#include "tests/FilesTest.h"
#include "tools/match/Ladder.h"
#include "tools/match/LadderChart.h"
#include "tools/match/PlayMatch.h"
#include "tools/match/SavedGames.h"

#include <numeric>
#include <set>
#include <tuple>

namespace brastel {

namespace {

using Results = std::vector<double>;

// ---- Elo ----

struct EloCase {
    const char* What;
    Results Played;
    const char* Text;
};

/// By hand: at a score of 3/4 the difference is 400 log10 3 = 190.8 and a hundredth of score is
/// 1.737 / (3/16) = 9.265 points.
const EloCase EloCases[] = {
    // Squares 3/4, so an error of sqrt(3/4 / 3 / 4) = 0.25 in score.
    {"three of four", {1, 1, 0, 1}, "+191 ± 454"},
    // The same score without luck: only the least error, sqrt(1/4 / 3 / 4).
    {"four times the same", {.75, .75, .75, .75}, "+191 ± 262"},
    {"the other way round", {0, 0, 1, 0}, "-191 ± 454"},
    // 1.737 / (1/4) = 6.949 points a hundredth; squares 2, error sqrt(2 / 7 / 8) = 0.189.
    {"even", {1, 0, 1, 0, 1, 0, 1, 0}, "+0 ± 257"},
    {"one draw", {.5}, "+0 ± 681"},
    // 0.05 ^ (1/10) = 0.7411.
    {"all won", Results(10, 1), "> 183"},
    {"all lost", Results(10, 0), "< -183"},
    {"nothing", {}, "unknown"},
};

Elo EloFrom(const Results& results) {
    const double sum = std::accumulate(results.begin(), results.end(), 0.0);
    return EloOf(sum / static_cast<double>(results.size()), results);
}

TEST(MatchTest, EloDifferenceIsTheOneWorkedOutByHand) {
    for (const auto& [what, played, text] : EloCases)
        EXPECT_EQ(EloText(EloFrom(played)), text) << what;
}

TEST(MatchTest, DifferencesAddUp) {
    const char* const cases[][3] = {
        {"+30 ± 30", "+100 ± 40", "+130 ± 50"},
        {"-30 ± 0", "+10 ± 7", "-20 ± 7"},
        {"+30 ± 30", "> 183", "> 183"},
        {"< -183", "+30 ± 30", "< -123"},
        {"> 100", "> 200", "> 300"},
        {"> 183", "< -20", "unknown"},
        {"unknown", "+1 ± 1", "unknown"},
    };
    for (const auto& [lower, upper, sum] : cases) {
        EXPECT_EQ(EloText(Sum(ReadElo(lower).value(), ReadElo(upper).value())), sum);
    }
    for (const char* const text :
         {"", "+30", "30 ± x", "+30 ± -1", "> ", "nan ± 1", "inf ± 1", "> 100001", "+1 ± 1 "}) {
        EXPECT_FALSE(ReadElo(text)) << text;
    }
}

// ---- Scores ----

MatchGame Game(int number, bool firstIsRed, Int16 winner, Int16 entries, std::uint64_t print) {
    MatchGame game;
    game.Number = number;
    game.FirstIsRed = firstIsRed;
    game.Winner = winner;
    game.Entries = entries;
    game.Fingerprint = print;
    game.Seconds.Fill(-1);
    for (int k = 3; k <= entries; ++k) game.Seconds[k] = static_cast<float>(k) / 1000;
    return game;
}

TEST(MatchTest, ScoreIsSeenFromTheFirstStrength) {
    const std::vector<MatchGame> games{Game(1, true, Red, 7, 1),     Game(2, false, Red, 7, 1),
                                       Game(3, true, Blue, 4, 2),    Game(4, false, Blue, 4, 3),
                                       Game(5, true, Empty, 200, 4), Game(6, false, Blue, 6, 5)};
    const MatchScore score = ScoreOf(games, true);
    const std::array<int, 9> counts{score.Games,      score.Wins,        score.Draws,
                                    score.Losses,     score.WinsAsRed,   score.LossesAsRed,
                                    WinsByRed(score), WinsByBlue(score), score.DifferentGames};
    EXPECT_EQ(counts, (std::array<int, 9>{6, 3, 1, 2, 1, 1, 2, 3, 5}));
    EXPECT_DOUBLE_EQ(score.MeanLength, 38);
    // Each pair has a result of its own: 1/2, 1/2 and 3/4.
    EXPECT_EQ(EloText(score.Difference), EloText(EloFrom(Results{.5, .5, .75})));
    EXPECT_EQ(EloText(ScoreOf(games, false).Difference),
              EloText(EloFrom(Results{1, 0, 0, 1, .5, 1})));
    // A game without its twin counts as much as any other.
    const std::vector<MatchGame> three(games.begin(), games.begin() + 3);
    EXPECT_TRUE(EloText(ScoreOf(three, true).Difference).starts_with("-120 ±"));
    // The first strength has the odd entries of games 1, 3 and 5 and the even ones of the others.
    const std::vector<MatchGame> two(games.begin(), games.begin() + 2);
    EXPECT_NEAR(ScoreOf(two, true).First.MedianSeconds, .005, 1e-6);
    EXPECT_NEAR(ScoreOf(games, true).First.WorstSeconds, .199, 1e-6);
    EXPECT_NEAR(ScoreOf(games, true).Second.WorstSeconds, .200, 1e-6);
    EXPECT_NEAR(ScoreOf({games[0]}, true).First.WorstSeconds, .007, 1e-6);
    EXPECT_NEAR(ScoreOf({games[0]}, true).Second.WorstSeconds, .006, 1e-6);
}

// ---- Games ----

MatchTerms Terms(Int16 first, Int16 second, bool alternates) {
    MatchTerms terms;
    terms.First = first;
    terms.Second = second;
    terms.Alternates = alternates;
    return terms;
}

using Record = std::vector<std::pair<int, int>>;

Record RecordOf(const MatchTerms& terms, int number) {
    MatchGame game;
    EXPECT_TRUE(PlayMatchGame(terms, number, game));
    Record record;
    for (int k = 1; k < Pos.MoveCount; ++k) record.emplace_back(PlayedFrom[k], PlayedTo[k]);
    return record;
}

TEST(MatchTest, GameFollowsFromTermsAndNumberAlone) {
    const MatchTerms terms = Terms(3, 2, false);
    const Record second = RecordOf(terms, 2);
    RecordOf(Terms(4, 1, true), 7);
    EXPECT_EQ(RecordOf(terms, 2), second);
    EXPECT_NE(RecordOf(terms, 3), second);
    MatchTerms others = terms;
    others.Seed = 2;
    EXPECT_NE(RecordOf(others, 2), second);
}

TEST(MatchTest, PairsOfGamesShareTheirOpening) {
    MatchTerms terms = Terms(3, 1, true);
    std::set<Record> openings;
    for (int number = 1; number <= 40; number += 2) {
        Record first = RecordOf(terms, number);
        Record second = RecordOf(terms, number + 1);
        // The two rings, and two moves of each side.
        ASSERT_GT(std::min(first.size(), second.size()), 6U);
        first.resize(6);
        second.resize(6);
        EXPECT_EQ(first, second) << number;
        openings.insert(first);
    }
    EXPECT_EQ(openings.size(), 20U);
}

/// Difficult beats Easy mostly, whichever colour it has, unless strengths and colours are mixed up.
TEST(MatchTest, StrengthKeepsToItsSide) {
    for (const bool alternates : {false, true}) {
        std::vector<MatchGame> games;
        ASSERT_EQ(PlayMatch(Terms(3, 1, alternates), {60, 1, {}}, games, [](const auto&) {}),
                  MatchEnd::Complete);
        const MatchScore score = ScoreOf(games, alternates);
        EXPECT_GT(score.Wins, 2 * score.Losses);
        EXPECT_EQ(score.WinsAsRed == score.Wins, !alternates);
        EXPECT_EQ(score.Games, 60);
        EXPECT_GT(score.DifferentGames, 55);
    }
}

TEST(MatchTest, NumberOfProcessesChangesNothing) {
    std::vector<MatchGame> alone;
    std::vector<MatchGame> shared;
    int told = 0;
    const auto count = [&](const MatchGame&) { ++told; };
    const MatchTerms terms = Terms(2, 1, true);
    ASSERT_EQ(PlayMatch(terms, {15, 1, {}}, alone, count), MatchEnd::Complete);
    ASSERT_EQ(PlayMatch(terms, {15, 4, {}}, shared, count), MatchEnd::Complete);
    EXPECT_EQ(told, 30);
    const auto key = [](const MatchGame& game) {
        return std::tuple(game.Number, game.FirstIsRed, game.Winner, game.Entries,
                          game.Fingerprint);
    };
    for (std::size_t n = 0; n < 15; ++n) EXPECT_EQ(key(alone[n]), key(shared[n]));
}

// ---- Saved games ----

/// In all layouts, and with a draw among them.
TEST(MatchTest, SavedGamesLoadAndLeadToTheSameEnd) {
    FileDesk desk;
    std::set<Int16> winners;
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        for (int number = 1; number <= 8; ++number) {
            MatchTerms terms = Terms(3, 3, true);
            terms.Pieces = LayoutPieces(layout);
            MatchGame game;
            ASSERT_TRUE(PlayMatchGame(terms, number, game));
            const Position end = Pos;
            winners.insert(game.Winner);
            const std::string path = desk / (std::to_string(layout) + SavedGameName(terms, number));
            ASSERT_EQ(SaveMatchGame(path), 0);
            SetFileView(&desk);
            LoadGameFile(path);
            BeginLoadedGame();
            EXPECT_EQ(desk.Told(), "close open ");
            while (ForwardVisible) StepForward();
            EXPECT_EQ(Pos, end) << path;
            EXPECT_EQ(GameOver != False, game.Winner != Empty);
            EXPECT_EQ(game.Entries, LoadedCount);
        }
    }
    EXPECT_EQ(winners, (std::set<Int16>{Red, Empty, Blue}));
}

TEST(MatchTest, SavedGamesOverwriteNothing) {
    FileDesk desk;
    const MatchTerms terms = Terms(11, 7, true);
    EXPECT_EQ(SavedGameName(terms, 7), "0007-God-GrandMaster.txt");
    EXPECT_EQ(SavedGameName(terms, 12346), "12346-GrandMaster-God.txt");
    const std::string folder = desk / "games";
    EXPECT_EQ(PrepareFolder(folder, terms, 3), "");
    WriteBytes(folder + "/0003-God-GrandMaster.txt", "mine");
    EXPECT_EQ(PrepareFolder(folder, terms, 2), "");
    EXPECT_NE(PrepareFolder(folder, terms, 3).find("0003-God-GrandMaster.txt exists"),
              std::string::npos);
    EXPECT_EQ(SaveMatchGame(folder + "/0003-God-GrandMaster.txt"), EEXIST);
    EXPECT_EQ(BytesOf(folder + "/0003-God-GrandMaster.txt"), "mine");
    EXPECT_EQ(SaveMatchGame(desk / "none/game.txt"), ENOENT);
    EXPECT_NE(PrepareFolder(desk / "none/games", terms, 1), "");
    EXPECT_NE(PrepareFolder(folder + "/0003-God-GrandMaster.txt", terms, 1), "");
}

TEST(MatchTest, MatchEndsWhereAGameCannotBeSaved) {
    FileDesk desk;
    std::vector<MatchGame> games;
    const MatchTerms terms = Terms(1, 1, false);
    WriteBytes(desk / SavedGameName(terms, 4), "mine");
    EXPECT_EQ(PlayMatch(terms, {9, 1, desk.Folder}, games, [](const auto&) {}), MatchEnd::NotSaved);
    ASSERT_EQ(games.size(), 4U);
    EXPECT_EQ(games.back().SaveError, EEXIST);
}

// ---- The ladder ----

Ladder SmallLadder(Int16 from, Int16 to) {
    Ladder ladder = BeginLadder(Terms(1, 1, true));
    for (Int16 level = from; level < to; ++level) {
        MatchScore score;
        score.Games = 4;
        score.Wins = 3;
        score.Losses = 1;
        score.Difference = {10.0 * level, 3, Certainty::Estimate};
        AddMatch(ladder, Terms(ToInt16(level + 1), level, true), score);
    }
    return ladder;
}

TEST(MatchTest, LadderJoinsItsParts) {
    const std::string whole = LadderText(SmallLadder(1, 11));
    // 10 + 20 + ... + 100, and the root of ten times 9.
    EXPECT_NE(whole.find("+550 ± 9 |"), std::string::npos) << whole;
    Ladder joined;
    for (const auto& [from, to] : {std::pair(1, 4), std::pair(4, 5), std::pair(5, 11)}) {
        const std::string part = LadderText(SmallLadder(ToInt16(from), ToInt16(to)));
        EXPECT_EQ(JoinLadder(joined, "A heading\n\n" + part + "\nNotes | and more\n"), "");
    }
    EXPECT_EQ(LadderText(joined), whole);
}

/// By the differences alone, so that a bound stays one whatever the columns of a part add up to.
TEST(MatchTest, LadderIsAddedUpAnewWhenItIsJoined) {
    const std::string head = LadderHead(BeginLadder(Terms(1, 1, true)));
    const std::string cells = "| | | | | | |\n";
    Ladder ladder;
    EXPECT_EQ(JoinLadder(ladder, head + "|1||||0" + cells + "|2|||+30 ± 30|+30 ± 30" + cells), "");
    EXPECT_EQ(JoinLadder(ladder, head + "|2||||0" + cells + "|3|||+70 ± 40|+70 ± 40" + cells +
                                     "|4|||> 183|> 253" + cells),
              "");
    EXPECT_EQ(EloText(ladder.Rungs.back().Height), "> 233");
}

std::string WithoutLine(const std::string& text, const std::string& begin) {
    const std::size_t at = text.find(begin);
    return text.substr(0, at) + text.substr(text.find('\n', at) + 1);
}

TEST(MatchTest, LadderRefusesWhatDoesNotFit) {
    const std::string lower = LadderText(SmallLadder(1, 3));
    const std::string upper = LadderText(SmallLadder(4, 6));
    std::string torn = lower;
    torn.replace(torn.find("+20 ±"), 3, "x20");
    std::string other = LadderText(SmallLadder(3, 4));
    other.replace(other.find("seed 1"), 6, "seed 2");
    const std::pair<std::vector<std::string>, std::string> cases[] = {
        {{""}, "there is no ladder in it"},
        {{lower.substr(0, lower.find("| level"))}, "there is no ladder in it"},
        {{lower, upper}, "Advanced does not follow on Difficult"},
        {{lower, WithoutLine(upper, "|     4")}, "Expert does not follow on Difficult"},
        {{upper, lower}, "Easy does not follow on Master"},
        {{upper.substr(upper.find("|     5"))}, "there is no ladder in it"},
        {{torn}, "how much stronger Difficult is cannot be read"},
        {{lower, other},
         "its terms are \"" + other.substr(0, other.find('\n')) + "\" and not \"" +
             lower.substr(0, lower.find('\n')) + '"'},
    };
    for (const auto& [texts, complaint] : cases) {
        Ladder ladder;
        std::string told;
        for (const std::string& text : texts) told += JoinLadder(ladder, text);
        EXPECT_EQ(told, complaint);
    }
}

/// The numbers that follow a text, wherever it occurs.
std::vector<double> NumbersAfter(const std::string& text, const std::string& what) {
    std::vector<double> numbers;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
        numbers.push_back(std::stod(text.substr(at + what.size())));
    }
    return numbers;
}

TEST(MatchTest, ChartIsTrueToScale) {
    const std::string chart = LadderChart(SmallLadder(2, 6));
    const auto marks = NumbersAfter(chart, "circle class=\"mark\" cx=\"");
    ASSERT_EQ(marks.size(), 5U) << chart;
    // Steps of 20, 30, 40 and 50 points.
    const double point = (marks[4] - marks[0]) / 140;
    EXPECT_NEAR(marks[1] - marks[0], 20 * point, .2);
    EXPECT_NEAR(marks[3] - marks[0], 90 * point, .2);
    // The lines are the grid, the zero line among them; after it come the bars.
    const auto bars = NumbersAfter(chart, "line class=\"error\" x1=\"");
    ASSERT_EQ(bars.size(), 12U);
    EXPECT_NEAR(marks[1] - bars[0], 3 * point, .2);
    const auto heights = NumbersAfter(chart, " cy=\"");
    EXPECT_TRUE(std::ranges::is_sorted(heights, std::greater()));
    Ladder strange = SmallLadder(2, 4);
    strange.Terms = "<a & b>";
    EXPECT_NE(LadderChart(strange).find("&lt;a &amp; b>"), std::string::npos);
}

}  // namespace

}  // namespace brastel
