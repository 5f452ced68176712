#include "core/QuietMove.h"
#include "core/StartPosition.h"
#include "engine/Candidates.h"
#include "engine/Random.h"
#include "engine/Search.h"

#include <benchmark/benchmark.h>

namespace brastel {

namespace {

/// A middle-game position of the standard layout: both sides have played their best immediate moves
/// for a while.
void SetUpMiddleGame() {
    constexpr int Entries = 16;
    SelectStartLayout(3);
    SetUpStartPosition();
    SeedRandom(1);
    for (; Pos.MoveCount <= Entries; ++Pos.MoveCount) {
        const MoveCode code = MoveList[1][ChooseCandidate(1)];
        ApplyMoveQuiet(OriginOf(code), DestinationOf(code));
    }
}

/// Items are candidates listed and scored.
void Generation(benchmark::State& state) {
    SetUpMiddleGame();
    while (state.KeepRunning()) GenerateMoves(1);
    state.SetItemsProcessed(state.iterations() * CandidateCount[1]);
}
BENCHMARK(Generation);

void QuietMoveAndTakeBack(benchmark::State& state) {
    SetUpMiddleGame();
    GenerateMoves(1);
    const Position saved = Pos;
    const MoveCode code = MoveList[1][1];
    while (state.KeepRunning()) {
        ApplyMoveQuiet(OriginOf(code), DestinationOf(code));
        Pos = saved;
        benchmark::DoNotOptimize(Pos);
    }
}
BENCHMARK(QuietMoveAndTakeBack);

void Search(benchmark::State& state) {
    SetUpMiddleGame();
    while (state.KeepRunning()) ChooseCandidate(static_cast<Int16>(state.range(0)));
}
BENCHMARK(Search)->DenseRange(1, 7)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace brastel
