#include "tools/match/MatchGame.h"

#include "core/Opening.h"
#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/Search.h"
#include "play/DisplayedMove.h"
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

/// Takes the time while the computer is busy. An interrupt closes this window like any other. The
/// clock of the game leaps over the pause before a search.
class MatchView : public GameView {
public:
    float Thought = 0;

    void ShowBusy(bool busy) override {
        const auto now = std::chrono::steady_clock::now();
        if (busy) BusySince = now;
        Thought = std::chrono::duration<float>(now - BusySince).count();
    }
    double Now() const override { return Leaping += 1; }
    bool IsClosing() const override { return Interrupted != 0; }

private:
    std::chrono::steady_clock::time_point BusySince;
    mutable double Leaping = 0;
};

// ---- The opening ----

/// The distributions of the standard library differ between machines.
int Draw(std::mt19937& dice, int n) {
    return static_cast<int>(dice() % static_cast<std::uint32_t>(n));
}

/// As a double-click does; any piece that people may choose.
void PlaceRandomRing(std::mt19937& dice, int pieces) {
    const int receiver = 1 + Draw(dice, std::min<int>(pieces, LastRingPiece));
    DoubleClickPiece({Pos.SideToMove, ToInt16(receiver)});
}

/// Without a candidate that can be played the side passes, as it does when it chooses.
void PlayRandomMove(std::mt19937& dice) {
    const int count = CandidateCount[1];
    ApplyMoveShown(PlayableAction(ToInt16(count == 0 ? 0 : 1 + Draw(dice, count))));
    CountEntry();
    CheckWin();
}

/// Two fixed strengths would play much the same game again and again: only an exact tie between
/// moves is left to chance. An opening that ends the game is drawn again.
void PlayOpening(const MatchTerms& terms, std::uint32_t seed) {
    std::mt19937 dice(seed);
    do {
        NewGameCommand();
        while (!BothRingsPlaced()) PlaceRandomRing(dice, terms.Pieces);
        for (int n = 0; n < 2 * terms.RandomMoves && GameOver == False; ++n) PlayRandomMove(dice);
    } while (GameOver != False);
}

// ---- The game ----

std::uint64_t FingerprintOfRecord() {
    std::uint64_t print = 0xcbf29ce484222325;
    for (int k = 1; k < Pos.MoveCount; ++k) {
        for (const int square : {PlayedFrom[k], PlayedTo[k]}) {
            print = (print ^ static_cast<std::uint64_t>(square)) * 0x100000001b3;
        }
    }
    return print;
}

bool PlayOn(const MatchTerms& terms, const MatchView& view, MatchGame& game) {
    while (GameOver == False && !IsRecordFull()) {
        const int entry = Pos.MoveCount;
        const bool isFirst = (Pos.SideToMove == Red) == game.FirstIsRed;
        if (!PlayChosenMove(isFirst ? terms.First : terms.Second)) return false;
        game.Seconds[entry] = view.Thought;
        CheckWin();
    }
    return true;
}

}  // namespace

int LayoutWith(int pieces) {
    for (int layout = 0; layout < FreeSetupLayout; ++layout) {
        if (LayoutPieces(layout) == pieces) return layout;
    }
    return -1;
}

bool PlayMatchGame(const MatchTerms& terms, int number, MatchGame& game) {
    game = {};
    game.Number = number;
    game.FirstIsRed = FirstPlaysRed(terms, number);
    game.Seconds.Fill(-1);
    const int opening = terms.Alternates ? (number + 1) / 2 : number;
    MatchView view;
    SetView(&view);
    SelectStartLayout(LayoutWith(terms.Pieces));
    SetLevel(TwoPlayerLevel);
    PlayOpening(terms, SeedOf(terms.Seed, 2 * static_cast<std::uint64_t>(opening)));
    // A new game seeds the generator by the clock, so this comes after it.
    SeedRandom(SeedOf(terms.Seed, 2 * static_cast<std::uint64_t>(number) + 1));
    const bool isComplete = PlayOn(terms, view, game);
    SetView(nullptr);
    game.Winner = FindWinner();
    game.Entries = ToInt16(Pos.MoveCount - 1);
    game.Fingerprint = FingerprintOfRecord();
    return isComplete;
}

}  // namespace brastel
