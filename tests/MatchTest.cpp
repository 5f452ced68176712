#include "tests/FilesTest.h"
#include "tools/match/MatchTable.h"
#include "tools/match/PlayMatch.h"
#include "tools/match/SavedGames.h"

#include <numeric>

namespace brastel {

namespace {

std::string EloFrom(const std::vector<double>& results) {
    const double sum = std::accumulate(results.begin(), results.end(), 0.0);
    return EloText(EloOf(sum / static_cast<double>(results.size()), results));
}

/// By hand: at a score of 3/4 the difference is 400 log10 3 = 190.8 and a hundredth of score is
/// 1.737 / (3/16) = 9.265 points. The squares are 3/4, so an error of sqrt(3/4 / 3 / 4) = 0.25 in
/// score; without luck only the least error, sqrt(1/4 / 3 / 4), is left. 0.05 ^ (1/10) = 0.7411.
TEST(MatchTest, EloDifferenceIsTheOneWorkedOutByHand) {
    EXPECT_EQ(EloFrom({1, 1, 0, 1}), "+191 ± 454");
    EXPECT_EQ(EloFrom({.75, .75, .75, .75}), "+191 ± 262");
    EXPECT_EQ(EloFrom({0, 0, 1, 0}), "-191 ± 454");
    EXPECT_EQ(EloFrom(std::vector<double>(10, 1)), "> 183");
    EXPECT_EQ(EloFrom(std::vector<double>(10, 0)), "< -183");
}

MatchGame Game(int number, Int16 winner, Int16 entries, std::uint64_t print) {
    MatchGame game{number, number % 2 == 1, winner, entries, print, {}, 0};
    game.Seconds.Fill(-1);
    for (int k = 3; k <= entries; ++k) game.Seconds[k] = static_cast<float>(k) / 1000;
    return game;
}

/// It has the odd entries of the odd games and the even ones of the others.
TEST(MatchTest, ScoreIsSeenFromTheFirstStrength) {
    const std::vector<MatchGame> games{Game(1, Red, 7, 1),     Game(2, Red, 7, 1),
                                       Game(3, Blue, 4, 2),    Game(4, Blue, 4, 3),
                                       Game(5, Empty, 200, 4), Game(6, Blue, 6, 5)};
    const MatchScore score = ScoreOf(games, true);
    const std::array<int, 9> counts{score.Games,      score.Wins,        score.Draws,
                                    score.Losses,     score.WinsAsRed,   score.LossesAsRed,
                                    WinsByRed(score), WinsByBlue(score), score.DifferentGames};
    EXPECT_EQ(counts, (std::array<int, 9>{6, 3, 1, 2, 1, 1, 2, 3, 5}));
    EXPECT_DOUBLE_EQ(score.MeanLength, 38);
    EXPECT_EQ(EloText(score.Difference), EloFrom({.5, .5, .75})) << "a result for each pair";
    EXPECT_EQ(EloText(ScoreOf(games, false).Difference), EloFrom({1, 0, 0, 1, .5, 1}));
    EXPECT_EQ(EloText(ScoreOf({games.begin(), games.begin() + 4}, true).Difference), "unknown");
    EXPECT_NEAR(score.First.WorstSeconds, .199, 1e-6);
    EXPECT_NEAR(score.Second.WorstSeconds, .200, 1e-6);
}

TEST(MatchTest, MatchEndsWhereAGameCannotBeSaved) {
    const FileDesk desk;
    std::vector<MatchGame> games;
    const MatchTerms terms{.First = 1, .Second = 1};
    WriteBytes(SavedGameName(terms, 4), "mine");
    EXPECT_EQ(PlayMatch(terms, {9, 1, desk.Folder}, games, [](const auto&) {}), MatchEnd::NotSaved);
    EXPECT_EQ(games.size(), 4U);
    EXPECT_EQ(games.back().SaveError, EEXIST);
    EXPECT_EQ(BytesOf(SavedGameName(terms, 4)), "mine");
}

}  // namespace

}  // namespace brastel
