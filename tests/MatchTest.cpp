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

/// Each move after the opening takes a millisecond.
MatchGame Game(int number, Int16 winner, Int16 entries, std::uint64_t hash) {
    constexpr std::int64_t Millisecond = 1'000'000;
    const ThinkingTime red{(entries - 5) / 2 * Millisecond, 0};
    const ThinkingTime blue{(entries - 6) / 2 * Millisecond, 0};
    return {number, winner, entries, hash, red, blue, 0};
}

TEST(MatchTest, ScoreIsSeenFromTheFirstStrength) {
    MatchGames games{{1, Game(1, Red, 7, 1)},     {2, Game(2, Red, 7, 1)},
                     {3, Game(3, Blue, 8, 2)},    {4, Game(4, Blue, 8, 3)},
                     {5, Game(5, Empty, 200, 4)}, {6, Game(6, Blue, 9, 5)}};
    MatchTerms terms;
    const MatchScore score = ScoreOf(terms, games);
    EXPECT_EQ((std::array{score.Games, score.Wins, score.Draws, score.Losses, score.WinsAsRed,
                          score.LossesAsRed, score.DifferentGames}),
              (std::array{6, 3, 1, 2, 1, 1, 5}));
    EXPECT_NEAR(score.MeanLength, 239 / 6.0, 1e-9);
    EXPECT_EQ(EloText(score.Difference), EloFrom({.5, .5, .75})) << "a result for each pair";
    EXPECT_EQ(score.First.Mean, score.Second.Mean);
    EXPECT_EQ(score.First.Mean, 1);
    terms.Alternates = false;
    EXPECT_EQ(EloText(ScoreOf(terms, games).Difference), EloFrom({1, 1, 0, 0, .5, 0}));
    EXPECT_EQ(EloText(ScoreOf(terms, {games.begin(), games.find(5)}).Difference), "unknown");
}

TEST(MatchTest, MatchEndsWhereAGameCannotBeSaved) {
    const FileDesk desk;
    const MatchTerms terms{.First = 1, .Second = 1};
    WriteBytes(SavedGameName(terms, 4), "mine");
    std::vector<int> errors;
    PlayMatch(terms, {.Folder = desk.Folder}, {1, 4, 5}, [&](const MatchGame* game) {
        if (game != nullptr) errors.push_back(game->SaveError);
        return true;
    });
    EXPECT_EQ(errors, (std::vector<int>{0, EEXIST}));
    EXPECT_EQ(BytesOf(SavedGameName(terms, 4)), "mine");
}

}  // namespace

}  // namespace brastel
