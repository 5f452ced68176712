#include "core/WinTest.h"
#include "play/DisplayedMove.h"
#include "play/TurnFlow.h"
#include "tests/FilesTest.h"
#include "tests/GameTest.h"
#include "tools/record/Report.h"
#include "tools/record/Review.h"
#include "tools/record/RuleCheck.h"

namespace brastel {
namespace {

/// The rules for entries that people cannot make themselves.
TEST(RecordCheckTest, BrokenRulesAreNamed) {
    const std::vector<std::tuple<const char*, int, int, const char*>> cases{
        {"r1 B44", 0, 0, ""},
        {"R11 B44 b4", 11, 4, "an opponent waits in the goal"},
        {"R11 B44", 11, 4, ""}};
    for (const auto& [pieces, from, to, broken] : cases) {
        Place(pieces);
        EXPECT_EQ(BrokenRule({from, to}), broken) << pieces;
    }
    SelectStartLayout(5);
    SetUpStartPosition();
    EXPECT_EQ(BrokenRule(NullMove), "the ring must be given to a piece first");
    EXPECT_EQ(BrokenRule({28}), "only pieces 1 to 8 may take the ring");
    RedStart[0] = 28;
    EXPECT_EQ(BrokenRule({28}), "") << "a free setup writes the square there";
}

/// Games by people and by the computer, with steps back.
TEST_F(GameTest, LawfulGamesAreNotMarked) {
    FileDesk desk;
    desk.Answer = true;
    Dice dice(3);
    for (int number = 0; number < 100; ++number) {
        Start(number % FreeSetupLayout);
        for (int left = 20 + Below(dice, 50); left > 0; --left) {
            if (Below(dice, 12) == 0) StepBack();
            GenerateMoves(1);
            const auto [from, to] = BothRingsPlaced() ? DrawAction(dice) : Action{};
            from == NoSquare || Below(dice, 3) == 0 ? void(PlayChosenMove(1)) : Drag(from, to);
        }
        SaveGameFile("game");
        const Position played = Pos;
        const RecordedGame game = ReadRecordedGame("game");
        EXPECT_TRUE(game.IsLegal()) << number << ' ' << ResultLine(game) << BytesOf("game");
        EXPECT_TRUE(game.Positions.back() == played);
    }
}

/// In the computer's own games, most of which are won, the review finds no better move, and the
/// same values as the search.
TEST(RecordCheckTest, ReviewsAgreeWithTheComputer) {
    FileDesk desk;
    desk.Answer = true;
    for (Int16 depth = 1; depth <= 5; ++depth) {
        SelectStartLayout(depth);
        SetUpStartPosition();
        SeedRandom(3);
        std::vector<RedValue> values;
        while (FindWinner() == Empty && Pos.MoveCount <= 60) {
            const Int16 chosen = ChooseCandidate(depth);
            const auto units = std::lround(MoveScores[SearchPly][chosen] * UnitsPerPoint);
            values.push_back(-Pos.SideToMove * static_cast<int>(units));
            ApplyMoveShown(PlayableAction(chosen));
            CountEntry();
        }
        SaveGameFile("game");
        const GameReview review = ReviewGame(ReadRecordedGame("game"), depth);
        ASSERT_EQ(review.Entries.size(), values.size());
        for (std::size_t n = RingCount; n < values.size(); ++n) {
            EXPECT_EQ(review.Entries[n].Value, values[n]) << depth << ' ' << n;
            EXPECT_EQ(review.Entries[n].Loss, 0) << depth << ' ' << n;
        }
    }
}

}  // namespace
}  // namespace brastel
