#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/Strengths.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
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

struct GameCase {
    int Layout;
    int Level;
};

std::vector<GameCase> AllGames() {
    std::vector<GameCase> games;
    for (int layout = 0; layout < LayoutCount; ++layout) {
        for (int level = TwoPlayerLevel; level <= TopLevel; ++level) {
            games.push_back({layout, level});
        }
    }
    return games;
}

std::string NameOf(const testing::TestParamInfo<GameCase>& game) {
    return "Layout" + std::to_string(game.param.Layout) + "Level" +
           std::to_string(game.param.Level);
}

/// Red is played with the mouse, by a player who looks no further than the next move.
class WholeGamesTest : public WindowTest, public testing::WithParamInterface<GameCase> {
protected:
    /// Eleven Red and nine Blue pieces, placed by hand.
    void SetUpByHand() {
        for (int square = 66; square <= 78; ++square) {
            if (InField(square)) ClickAt(Centre(square));
        }
        DoubleClick(69);
        for (int square = 34; square <= 45; ++square) {
            if (InField(square) && square != 38) ClickAt(Centre(square));
        }
        DoubleClick(43);
    }

    void Begin() {
        const auto [layout, level] = GetParam();
        Open(layout);
        const auto item = level == TwoPlayerLevel
                              ? "mnu_TwoPlayer"
                              : Strengths[static_cast<std::size_t>(level - 1)].Item;
        ChooseFromMenu("mnu_Level", item.data());
        ASSERT_EQ(Level, level);
        SeedRandom(7);
        if (layout == FreeSetupLayout) return SetUpByHand();
        DoubleClick(Pos.RedSquare[1]);
        if (level == TwoPlayerLevel) DoubleClick(Pos.BlueSquare[2]);
    }

    /// Drags the best move that a hand can make (a goal entry is none), or passes with the hint.
    void PlayByHand() {
        GenerateMoves(1);
        SortCandidates(1);
        for (int n = 1; n <= CandidateCount[1]; ++n) {
            const int destination = DestinationOf(MoveList[1][n]);
            if (InField(destination)) return Drag(OriginOf(MoveList[1][n]), destination);
        }
        ClickButton("btn_Hint");
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
        ExpectViewShowsPosition();
    }
    EXPECT_TRUE(IsRecordFull() || Message() == "Red Wins!" || Message() == "Blue Wins!");
    while (IsShown("btn_Backward")) ClickButton("btn_Backward");
    EXPECT_EQ(Pos.MoveCount, 1);
    ExpectViewShowsPosition();
}

INSTANTIATE_TEST_SUITE_P(Games, WholeGamesTest, testing::ValuesIn(AllGames()), NameOf);

}  // namespace

}  // namespace brastel
