/// Plays many random games and checks everything after every gesture.

#include "core/StartPosition.h"
#include "testing/Headless.h"
#include "testing/Positions.h"
#include "testing/RandomSource.h"
#include "testing/Require.h"
#include "tools/ReadNumber.h"

#include <iostream>

namespace {

using namespace brastel;

constexpr std::string_view Usage = R"(Usage: brastel-soak GAMES [SEED]
Plays GAMES games of random gestures, the first by the dice of SEED (1), the next
by those of SEED + 1, and so on. Checks everything after each gesture. Prints how
often everything happened. Status 1 at the first fault, and if some kind of event
never happened in 500 games; 2 for bad arguments.
)";

constexpr int GesturesOfGame = 150;
constexpr std::int64_t EnoughGames = 500;

void PlayGame(std::int64_t seed) try {
    RandomSource = Dice(static_cast<unsigned>(seed));
    StartProgram(static_cast<int>(seed % LayoutCount));
    BeginPlaying();
    Play(GesturesOfGame);
} catch (const std::exception& fault) {
    std::cout << "FAULT: " << fault.what() << "\nposition: " << Listed() << ", entry "
              << Pos.MoveCount << ", level " << Level << "\nAlone: brastel-soak 1 " << seed << '\n';
    std::exit(EXIT_FAILURE);
}

}  // namespace

int main(int count, char** texts) {
    constexpr std::int64_t Plenty = 1'000'000'000;
    const auto games = ReadNumber(count == 2 || count == 3 ? texts[1] : "", 1, Plenty);
    const auto seed = ReadNumber(count == 3 ? texts[2] : "1", 0, Plenty);
    if (!games || !seed) return std::cerr << Usage, 2;
    for (std::int64_t game = 0; game < *games; ++game) PlayGame(*seed + game);
    for (const auto& [kind, times] : Tally) std::cout << times << "  " << kind << '\n';
    // A long run without some kind of event has tested nothing of that kind.
    return *games >= EnoughGames && Tally.size() < KindsOfEvent ? EXIT_FAILURE : EXIT_SUCCESS;
}
