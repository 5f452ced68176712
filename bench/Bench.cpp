/// Lets the computer choose a move at each level in every bench position and prints how long that
/// took, and the signature: one number over all that it would choose. It stays the same as long as
/// the computer plays the same, whatever the compiler, its options and the machine.

#include "bench/BenchPositions.h"
#include "core/Position.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "engine/TreeSearch.h"
#include "tools/CommandLine.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <limits>
#include <numeric>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace {

using namespace brastel;

constexpr const char* Description =
    R"(Times the computer's choice at each LEVEL in positions from real games. The last
line is the signature of the choices: equal play, equal signature.
)";

// ---- The signature ----

/// FNV-1a over the bytes of all values mixed in, lowest byte first on every machine.
using Signature = std::uint64_t;

constexpr Signature EmptySignature = 0xcbf29ce484222325;
constexpr Signature FnvPrime = 0x100000001b3;

void Mix(Signature& signature, std::uint64_t value) {
    for (unsigned shift = 0; shift < 64; shift += 8) {
        signature = (signature ^ (value >> shift & 0xff)) * FnvPrime;
    }
}

/// The best value and all candidates that reach it. Which of them was chosen is a matter of tossed
/// coins, and what the others are worth a matter of where the search stopped looking.
void MixChoice(Signature& signature, Int16 level, int chosen) {
    const double best = chosen == 0 ? NoScore : MoveScores[1][chosen];
    Mix(signature, static_cast<std::uint64_t>(level));
    Mix(signature, std::bit_cast<std::uint64_t>(best));
    for (int n = 1; n <= CandidateCount[1]; ++n) {
        if (MoveScores[1][n] == best) Mix(signature, static_cast<std::uint64_t>(MoveList[1][n]));
    }
}

// ---- One level ----

struct Timing {
    double Seconds;
    int Position;
};

Timing TimeChoice(Int16 level, int position, Signature& signature) {
    using Clock = std::chrono::steady_clock;
    SetUpBenchPosition(position);
    const auto begin = Clock::now();
    const Int16 chosen = ChooseCandidate(level);
    const std::chrono::duration<double> time = Clock::now() - begin;
    MixChoice(signature, level, chosen);
    return {time.count(), position};
}

/// What the whole run found. It is the same on every machine.
struct Findings {
    Signature Choices = EmptySignature;
    std::int64_t Searched = 0;
};

void BenchLevel(Int16 level, std::span<const int> positions, Findings& findings) {
    std::vector<Timing> timings;
    double seconds = 0;
    std::int64_t searched = 0;
    for (const int position : positions) {
        timings.push_back(TimeChoice(level, position, findings.Choices));
        seconds += timings.back().Seconds;
        searched += static_cast<std::int64_t>(SearchedPositions);
    }
    findings.Searched += searched;
    std::ranges::sort(timings, {}, &Timing::Seconds);
    const Timing& worst = timings.back();
    std::printf("%5d  %10.3f ms  %10.3f ms  %10.3f ms  %12" PRId64 "  %s\n", level,
                timings[timings.size() / 2].Seconds * 1000, worst.Seconds * 1000, seconds * 1000,
                searched, BenchPositionLabel(worst.Position).c_str());
    std::fflush(stdout);
}

// ---- The command line ----

struct Options {
    std::vector<Int16> Levels;
    int Pieces = 0;
    std::string Expected;
    std::int64_t MostSearched = std::numeric_limits<std::int64_t>::max();
};

/// Returns an exit status if the program must end.
std::optional<int> ReadOptions(int count, const char* const* texts, Options& options) {
    CLI::App app(Description, "brastel-bench");
    app.add_option("LEVEL", options.Levels, "1 to 11, or the name of a strength (all)")
        ->transform(IsStrength());
    app.add_option("--pieces", options.Pieces,
                   "only positions with 2, 4, 6, 8, 10 or 12 pieces a side")
        ->type_name("N")
        ->transform(IsPieceCount());
    app.add_option("--expect", options.Expected, "fail with status 1 unless this is the signature")
        ->type_name("HEX");
    app.add_option("--at-most", options.MostSearched,
                   "fail with status 1 if more positions are searched")
        ->type_name("N")
        ->transform(IsNumber(0, options.MostSearched));
    const auto status = ReadArguments(app, count, texts);
    for (Int16 level = 1; level <= MaxPly && app.count("LEVEL") == 0; ++level) {
        options.Levels.push_back(level);
    }
    return status;
}

std::vector<int> PositionsOf(const Options& options) {
    if (options.Pieces != 0) return BenchPositionsWith(options.Pieces);
    std::vector<int> positions(BenchPositionCount);
    std::iota(positions.begin(), positions.end(), 1);
    return positions;
}

// ---- The whole run ----

Findings BenchLevels(const Options& options) {
    Findings findings;
    const std::vector<int> positions = PositionsOf(options);
    std::puts("level         median          worst            all     positions  worst in");
    for (const Int16 level : options.Levels) BenchLevel(level, positions, findings);
    return findings;
}

int CheckFindings(const Findings& findings, const Options& options) {
    std::array<char, 17> signature{};
    std::snprintf(signature.data(), signature.size(), "%016" PRIx64, findings.Choices);
    std::printf("all positions %" PRId64 "\nsignature %s\n", findings.Searched, signature.data());
    if (!options.Expected.empty() && options.Expected != signature.data()) {
        std::fprintf(stderr, "The computer plays differently: the signature should be %s.\n",
                     options.Expected.c_str());
        return FoundFault;
    }
    if (findings.Searched > options.MostSearched) {
        std::fprintf(stderr, "The search does more work than %" PRId64 " positions.\n",
                     options.MostSearched);
        return FoundFault;
    }
    return Done;
}

int Main(int count, char** texts) {
    Options options;
    if (const auto status = ReadOptions(count, texts, options)) return *status;
    return CheckFindings(BenchLevels(options), options);
}

}  // namespace

int main(int count, char** texts) {
    return brastel::RunProgram("brastel-bench", Main, count, texts);
}
