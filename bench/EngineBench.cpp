#include "bench/BenchPositions.h"
#include "engine/Beam.h"
#include "engine/Candidates.h"
#include "engine/PlySave.h"
#include "engine/Search.h"

#include <benchmark/benchmark.h>

namespace brastel {

namespace {

/// Of the standard layout, with pieces waiting outside.
constexpr int MiddleGame = 29;

/// Items are candidates listed and scored.
void Generation(benchmark::State& state) {
    SetUpBenchPosition(MiddleGame);
    while (state.KeepRunning()) GenerateMoves(1);
    state.SetItemsProcessed(state.iterations() * CandidateCount[1]);
}
BENCHMARK(Generation);

/// What the search does at the inner plies instead: the candidates that it keeps.
void CandidateSetAndBeam(benchmark::State& state) {
    SetUpBenchPosition(MiddleGame);
    CandidateSet set;
    while (state.KeepRunning()) {
        BeginCandidates(set);
        GenerateBest(set);
        benchmark::DoNotOptimize(KeepBeam(set, static_cast<int>(state.range(0))));
    }
}
BENCHMARK(CandidateSetAndBeam)->Arg(4)->Arg(10)->Arg(BeamWidth);

/// And at the deepest ply: the highest value alone.
void BestReply(benchmark::State& state) {
    SetUpBenchPosition(MiddleGame);
    while (state.KeepRunning()) benchmark::DoNotOptimize(HighestValue(NoScore, -NoScore));
}
BENCHMARK(BestReply);

void QuietMoveAndTakeBack(benchmark::State& state) {
    SetUpBenchPosition(MiddleGame);
    GenerateMoves(1);
    const PlySave saved;
    const Action action = DecodeMove(MoveList[1][1]);
    while (state.KeepRunning()) {
        ApplyMoveQuiet(action);
        saved.Restore();
        benchmark::DoNotOptimize(Pos);
    }
}
BENCHMARK(QuietMoveAndTakeBack);

void Search(benchmark::State& state) {
    SetUpBenchPosition(MiddleGame);
    while (state.KeepRunning()) ChooseCandidate(static_cast<Int16>(state.range(0)));
}
BENCHMARK(Search)->DenseRange(1, MaxPly)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace brastel
