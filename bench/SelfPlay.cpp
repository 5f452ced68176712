/// Lets the computer play one whole standard game against itself at each of the given depths (all
/// if none is given) and prints how long its moves took.

#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "core/WinTest.h"
#include "engine/Random.h"
#include "engine/Search.h"
#include "engine/Strengths.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

using namespace brastel;

constexpr int StandardLayout = 3;
constexpr int MaxEntries = 200;

/// Seconds that each move took.
std::vector<double> PlayGame(Int16 depth) {
    using Clock = std::chrono::steady_clock;
    std::vector<double> times;
    SelectStartLayout(StandardLayout);
    SetUpStartPosition();
    SeedRandom(1);
    for (; Pos.MoveCount <= MaxEntries && FindWinner() == Empty; ++Pos.MoveCount) {
        const auto begin = Clock::now();
        const MoveCode code = MoveList[1][ChooseCandidate(depth)];
        times.push_back(std::chrono::duration<double>(Clock::now() - begin).count());
        const bool fits = ActionFits(OriginOf(code), DestinationOf(code));
        ApplyMoveQuiet(fits ? OriginOf(code) : NoSquare, fits ? DestinationOf(code) : NoSquare);
    }
    return times;
}

void Report(Int16 depth) {
    std::vector<double> times = PlayGame(depth);
    std::ranges::sort(times);
    std::printf("depth %2d: %3zu moves, median %9.6f s, worst %9.6f s\n", depth, times.size(),
                times[times.size() / 2], times.back());
    std::fflush(stdout);
}

}  // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        const int depth = std::atoi(argv[i]);
        if (depth < 1 || depth > MaxPly) {
            std::fprintf(stderr, "%s: no depth from 1 to %d\n", argv[i], MaxPly);
            return 2;
        }
        Report(ToInt16(depth));
    }
    if (argc > 1) return 0;
    for (const Strength& strength : Strengths) Report(strength.Depth);
}
