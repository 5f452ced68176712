#include "core/Consistency.h"
#include "play/DisplayedMove.h"
#include "tests/GameTest.h"

#include <vector>

namespace brastel {
namespace {

/// Red pieces outside less Blue ones, counted on the board.
int CountOutside() {
    int balance = 0;
    for (int s = FirstSquare; s <= LastSquare; ++s) balance -= InField(s) ? 0 : Pos.Board[s];
    return balance;
}

/// Games of two people from one start layout, played as in the window.
class RandomGamesTest : public GameTest, public testing::WithParamInterface<int> {
protected:
    void SetUpPieces() {
        const int choice = std::min(LayoutPieces(GetParam()), 8);
        Start(GetParam());
        if (choice > 0) {
            DoubleClick(Red, 1 + Below(Random, choice));
            return DoubleClick(Blue, 1 + Below(Random, choice));
        }
        for (const Int16 side : {Red, Blue}) {
            const int pieces = 1 + Below(Random, MaxPieces);
            while (PieceCount(side) < pieces) {
                Click(SquareAt(1 + Below(Random, 12), 1 + Below(Random, 6)));
            }
            DoubleClick(side, 1 + Below(Random, pieces));
        }
        // A game stepped back to the start forgets these, and no rule reads them any more.
        Pos.RedPlaced = Pos.BluePlaced = 0;
    }

    /// Plays the action as the search does, as the computer does and as people do.
    void PlayThreeWays(const Action& action) {
        const Position before = Pos;
        const bool isHit = Pos.Board[action.second] == -Pos.SideToMove;
        ApplyMoveQuiet(action.first, action.second);
        const Position quiet = Pos;
        Pos = before;
        ApplyMoveShown(action.first, action.second);
        ASSERT_TRUE(Pos == quiet) << "computer: " << Listed();
        Pos = before;
        Drop(action.first, action.second);
        Pos.MoveCount = before.MoveCount;
        ASSERT_TRUE(Pos == quiet) << "people: " << Listed();
        ++Pos.MoveCount;
        ASSERT_EQ(FirstInconsistency(), "");
        ASSERT_EQ(Pos.OutsideBalance, CountOutside());
        Captures += isHit && IsRingSquare(action.second);
        Returns += !isHit && Pos.OutsideBalance != before.OutsideBalance;
    }

    /// Leaves in Played the positions before each entry from the third on, and the last.
    void PlayGame() {
        SetUpPieces();
        Played.assign(1, Pos);
        GenerateMoves(1);
        for (int left = 30 + Below(Random, 26); left > 0; --left) {
            const Action action = DrawAction(Random);
            if (action.first == 0) return;
            SCOPED_TRACE(testing::Message() << action.first << ' ' << action.second);
            ASSERT_NO_FATAL_FAILURE(PlayThreeWays(action));
            Played.push_back(Pos);
        }
    }

    /// Forward through the game as if it had been loaded, and back again.
    void WalkAlong() {
        LoadPlayedGame();
        StepForward();
        for (const Position& position : Played) {
            StepForward();
            ASSERT_TRUE(Pos == position) << Listed();
        }
        for (std::size_t left = Played.size() - 1; left > 0; --left) {
            StepBack();
            ASSERT_TRUE(Pos == Played[left - 1]) << Listed();
        }
    }

    Dice Random{static_cast<unsigned>(GetParam())};
    std::vector<Position> Played;
    int Captures = 0;
    int Returns = 0;
};

TEST_P(RandomGamesTest, AllWaysOfPlayingAgree) {
    constexpr int Games = 1500;
    for (int game = 1; game <= Games; ++game) {
        SCOPED_TRACE(game);
        ASSERT_NO_FATAL_FAILURE(PlayGame());
        if (Played.size() > 1) {
            StepBack();
            ASSERT_TRUE(Pos == Played[Played.size() - 2]) << "the record replayed: " << Listed();
            Pos = Played.back();
        }
        if (game % 10 > 0) continue;
        ASSERT_NO_FATAL_FAILURE(WalkAlong());
    }
    EXPECT_GT(Captures, Games / 10) << "too little happens to prove anything";
    EXPECT_GT(Returns, Games / 20);
}

INSTANTIATE_TEST_SUITE_P(Layouts, RandomGamesTest, testing::Range(0, LayoutCount));

}  // namespace
}  // namespace brastel
