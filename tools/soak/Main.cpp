/// Plays many random games and checks everything after every gesture.

#include "core/StartPosition.h"
#include "testing/Headless.h"
#include "testing/Positions.h"
#include "testing/RandomSource.h"
#include "testing/Require.h"
#include "tools/CommandLine.h"

#include <iostream>

namespace {

using namespace brastel;

constexpr const char* Description =
    R"(Plays games of random gestures and checks everything after each gesture. Prints
how often each kind of event happened. Status 1 at the first fault, and if a
kind of event never happened in 500 games.
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

int Main(int count, char** texts) {
    CLI::App app(Description, "brastel-soak");
    RandomRun run;
    if (const auto status = ReadRandomRun(app, "GAMES", run, count, texts)) return *status;
    for (std::int64_t game = 0; game < run.Times; ++game) PlayGame(run.Seed + game);
    for (const auto& [kind, times] : Tally) std::cout << times << "  " << kind << '\n';
    // A long run without some kind of event has tested nothing of that kind.
    return run.Times >= EnoughGames && Tally.size() < KindsOfEvent ? FoundFault : Done;
}

}  // namespace

int main(int count, char** texts) {
    return brastel::RunProgram("brastel-soak", Main, count, texts);
}
