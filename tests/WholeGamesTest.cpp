#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tests/WindowTest.h"

namespace brastel {

namespace {

struct GameCase {
    const char* Name;
    int Layout;
    /// Menu item of the strength.
    const char* Item;
};

std::ostream& operator<<(std::ostream& out, const GameCase& game) { return out << game.Name; }

/// Red is played with the mouse, by a player who looks no further than the next move.
class WholeGamesTest : public WindowTest, public testing::WithParamInterface<GameCase> {
protected:
    /// Sets up eleven Red and nine Blue pieces by hand.
    void SetUpByHand() {
        for (int square = 66; square <= 76; ++square) {
            if (InField(square)) ClickAt(Centre(square));
        }
        ClickAt(Centre(28));
        DoubleClick(69);
        for (int square = 34; square <= 45; ++square) {
            if (InField(square)) ClickAt(Centre(square));
        }
        DoubleClick(43);
    }

    void Begin(const GameCase& game) {
        Open(game.Layout);
        ChooseFromMenu("mnu_Level", game.Item);
        SeedRandom(7);
        if (game.Layout == FreeSetupLayout) {
            SetUpByHand();
        } else {
            DoubleClick(Pos.RedSquare[1]);
            if (Level == TwoPlayerLevel) DoubleClick(Pos.BlueSquare[2]);
        }
        ASSERT_EQ(Pos.MoveCount, 3);
    }

    /// Drags the best move that a hand can make (a goal entry is none), or passes with the hint.
    void PlayByHand() {
        GenerateMoves(1);
        SortCandidates(1);
        for (int n = 1; n <= CandidateCount[1]; ++n) {
            const int destination = DestinationOf(MoveList[1][n]);
            if (!InField(destination)) continue;
            Drag(OriginOf(MoveList[1][n]), destination);
            return;
        }
        ClickButton("btn_Hint");
    }
};

TEST_P(WholeGamesTest, IsPlayedToItsEnd) {
    Begin(GetParam());
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

INSTANTIATE_TEST_SUITE_P(
    Easy, WholeGamesTest,
    testing::Values(GameCase{"Two", 0, "mnu_Easy"}, GameCase{"Four", 1, "mnu_Easy"},
                    GameCase{"Six", 2, "mnu_Easy"}, GameCase{"Eight", 3, "mnu_Easy"},
                    GameCase{"Ten", 4, "mnu_Easy"}, GameCase{"Twelve", 5, "mnu_Easy"},
                    GameCase{"FreeSetup", 6, "mnu_Easy"}),
    testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(Strengths, WholeGamesTest,
                         testing::Values(GameCase{"TwoPlayer", 3, "mnu_TwoPlayer"},
                                         GameCase{"Medium", 3, "mnu_Medium"},
                                         GameCase{"Difficult", 5, "mnu_Difficult"},
                                         GameCase{"Advanced", 6, "mnu_Advanced"}),
                         testing::PrintToStringParamName());

#ifdef NDEBUG
/// Too slow with the assertions on, which look at every position of the search.
INSTANTIATE_TEST_SUITE_P(DeepStrengths, WholeGamesTest,
                         testing::Values(GameCase{"Expert", 4, "mnu_Expert"},
                                         GameCase{"Master", 3, "mnu_Master"},
                                         GameCase{"GrandMaster", 2, "mnu_GrandMaster"},
                                         GameCase{"King", 1, "mnu_King"},
                                         GameCase{"Emperor", 0, "mnu_Emperor"}),
                         testing::PrintToStringParamName());
#endif

}  // namespace

}  // namespace brastel
