#include "tools/match/MatchGame.h"

#include "core/Opening.h"
#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/Search.h"
#include "play/DisplayedMove.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/HumanAction.h"
#include "play/Stepping.h"
#include "play/TurnFlow.h"
#include "tools/GameSeed.h"
#include "tools/Interrupt.h"

#include <chrono>
#include <random>

namespace brastel {

namespace {

/// Measures the time while the computer thinks. An interrupt counts as closing the window. Its
/// clock advances by a second at each call, so the pause before a search takes no time.
class MatchView : public GameView {
public:
    std::chrono::nanoseconds Time{0};

    void ShowBusy(bool busy) override {
        const auto now = std::chrono::steady_clock::now();
        if (busy) BusySince = now;
        Time = now - BusySince;
    }
    double Now() const override { return Clock += 1; }
    bool IsClosing() const override { return Interrupted != 0; }

private:
    std::chrono::steady_clock::time_point BusySince;
    mutable double Clock = 0;
};

// ---- The opening ----

int LayoutWith(int pieces) {
    int layout = 0;
    while (LayoutPieces(layout) != pieces) ++layout;
    return layout;
}

/// A random number below n. The distributions of the standard library are not the same on all
/// machines.
int RandomBelow(std::mt19937& random, int n) {
    return static_cast<int>(random() % static_cast<std::uint32_t>(n));
}

/// Gives the ring to any piece that a person may choose.
void PlaceRandomRing(std::mt19937& random, int pieces) {
    const int receiver = 1 + RandomBelow(random, std::min<int>(pieces, LastRingPiece));
    DoubleClickPiece({Pos.SideToMove, ToInt16(receiver)});
}

/// Plays any candidate. The side passes if it has no candidate or if the candidate cannot be
/// played.
void PlayRandomMove(std::mt19937& random) {
    const int count = CandidateCount[1];
    ApplyMoveShown(PlayableAction(ToInt16(count == 0 ? 0 : 1 + RandomBelow(random, count))));
    CountEntry();
    CheckWin();
}

/// Without a random opening, two strengths would play nearly the same game each time, because the
/// computer chooses at random only between equal moves. An opening that ends the game is replaced
/// by another one.
void PlayOpening(const MatchTerms& terms, std::uint32_t seed) {
    std::mt19937 random(seed);
    do {
        NewGameCommand();
        while (!BothRingsPlaced()) PlaceRandomRing(random, terms.Pieces);
        for (int n = 0; n < 2 * terms.RandomMoves && GameOver == False; ++n) PlayRandomMove(random);
    } while (GameOver != False);
}

// ---- The game ----

std::uint64_t HashOfRecord() {
    std::uint64_t hash = 0xcbf29ce484222325;
    for (int k = 1; k < Pos.MoveCount; ++k) {
        for (const int square : {PlayedFrom[k], PlayedTo[k]}) {
            hash = (hash ^ static_cast<std::uint64_t>(square)) * 0x100000001b3;
        }
    }
    return hash;
}

bool PlayOn(const MatchTerms& terms, const MatchView& view, MatchGame& game) {
    while (GameOver == False && !IsRecordFull()) {
        const Int16 side = Pos.SideToMove;
        if (!PlayChosenMove(StrengthOf(terms, game.Number, side))) return false;
        ThinkingTime& time = side == Red ? game.RedTime : game.BlueTime;
        time.Total += view.Time.count();
        time.Worst = std::max<std::int64_t>(time.Worst, view.Time.count());
        CheckWin();
    }
    return true;
}

}  // namespace

bool PlayMatchGame(const MatchTerms& terms, int number, MatchGame& game) {
    game = {};
    game.Number = number;
    const int opening = terms.Alternates ? (number + 1) / 2 : number;
    MatchView view;
    SetView(&view);
    SelectStartLayout(LayoutWith(terms.Pieces));
    SetLevel(TwoPlayerLevel);
    PlayOpening(terms, SeedOf(terms.Seed, 2 * static_cast<std::uint64_t>(opening)));
    // After PlayOpening: a new game seeds the generator by the clock.
    SeedRandom(SeedOf(terms.Seed, 2 * static_cast<std::uint64_t>(number) + 1));
    const bool isComplete = PlayOn(terms, view, game);
    SetView(nullptr);
    game.Winner = FindWinner();
    game.Entries = ToInt16(Pos.MoveCount - 1);
    game.Hash = HashOfRecord();
    return isComplete;
}

}  // namespace brastel
