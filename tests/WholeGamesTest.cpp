#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/Strengths.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "testing/ShownPosition.h"
#include "tests/WindowTest.h"

namespace brastel {

namespace {

/// The strongest level that is played: with the assertions, which look at every position of a
/// search, stronger ones take too long.
#ifdef NDEBUG
constexpr int TopLevel = MaxPly;
#else
constexpr int TopLevel = 4;
#endif
constexpr int GameCount = std::max(LayoutCount, TopLevel + 1);

/// Every layout and every level. Red is played with the mouse, by a player who looks no further
/// than the next move.
class WholeGamesTest : public WindowTest, public testing::WithParamInterface<int> {
protected:
    void Begin() {
        const int level = GetParam() % (TopLevel + 1);
        Open((GetParam() + 3) % LayoutCount);
        Do("mnu_" + (level == TwoPlayerLevel ? "TwoPlayer" : StrengthName(level)));
        SeedRandom(7);
        if (Pos.RedCount > 0) return Do(level == TwoPlayerLevel ? "!68 !45" : "!68");
        // Eleven Red and nine Blue pieces, placed by hand.
        Do("+66 +67 +68 +69 +70 +71 +74 +75 +76 +77 +78 !69");
        Do("+34 +35 +36 +37 +39 +42 +43 +44 +45 !43");
    }

    /// Drags the best move, or passes or enters the goal with the hint, which no hand can.
    void PlayByHand() {
        GenerateMoves(1);
        SortCandidates(1);
        const auto [from, to] = CandidateCount[1] == 0 ? NullMove : DecodeMove(MoveList[1][1]);
        Do(InField(to) ? std::to_string(from) + '-' + std::to_string(to) : "btn_Hint");
    }

    /// They change after moves of the computer, and not after those of people.
    void ExpectHiddenTexts() {
        const auto text = [this](const QString& box) {
            return Control<QObject>(box.toUtf8())->property("text").toString();
        };
        for (int square = FirstSquare; square <= LastSquare; ++square) {
            EXPECT_EQ(text(QString("Text1_%1").arg(square)), QString::number(Pos.Board[square]));
        }
        EXPECT_EQ(text("Text2_0"), QString::number(CandidateCount[1]));
    }
};

TEST_P(WholeGamesTest, IsPlayedToItsEndAndBack) {
    Begin();
    ASSERT_EQ(Pos.MoveCount, 3);
    while (GameOver == False && !IsRecordFull()) {
        const int before = Pos.MoveCount;
        PlayByHand();
        ASSERT_GT(Pos.MoveCount, before) << "the drop was refused";
        ASSERT_TRUE(Level == TwoPlayerLevel || GameOver != False || IsRecordFull() ||
                    Pos.SideToMove == Red)
            << "the computer did not answer";
        EXPECT_EQ(FirstWrongShown(Picture()), "");
        if (Level != TwoPlayerLevel && Pos.SideToMove == Red) ExpectHiddenTexts();
    }
    const std::string end = State();
    EXPECT_TRUE(IsRecordFull() || end.ends_with(" Wins! *")) << end;
    for (int left = Pos.MoveCount - 1; left > 0; --left) Do("btn_Backward");
    EXPECT_TRUE(State().starts_with("0 Red Hint"));
}

INSTANTIATE_TEST_SUITE_P(Games, WholeGamesTest, testing::Range(0, GameCount));

}  // namespace

}  // namespace brastel
