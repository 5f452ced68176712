/// Lets the computer choose a move at each level in every bench position and prints how long that
/// took, and the signature: one number over all that it would choose. It stays the same as long as
/// the computer plays the same, whatever the compiler, its options and the machine.

#include "bench/BenchPositions.h"
#include "core/Position.h"
#include "engine/Candidates.h"
#include "engine/Search.h"
#include "engine/TreeSearch.h"
#include "tools/ReadNumber.h"

#include <algorithm>
#include <array>
#include <bit>
#include <chrono>
#include <cinttypes>
#include <cstdio>
#include <limits>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace brastel;

constexpr const char* Usage = R"(Usage: brastel-bench [OPTION...] [LEVEL...]

Times the computer's choice at each LEVEL, 1 to 11 (all if none is given), in positions from real
games. The last line is the signature of the choices: equal play, equal signature.

  --pieces N     only positions of the start layout with N pieces a side: 2, 4, 6, 8, 10 or 12
  --expect HEX   fail with status 1 unless this is the signature
  --at-most N    fail with status 1 if more positions than this are looked at
  --help         show this text
)";

constexpr int Unexpected = 1;
constexpr int BadArguments = 2;

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

/// What the whole run found, on any machine the same.
struct Findings {
    Signature Choices = EmptySignature;
    std::uint64_t Searched = 0;
};

void BenchLevel(Int16 level, std::span<const int> positions, Findings& findings) {
    std::vector<Timing> timings;
    double seconds = 0;
    std::uint64_t searched = 0;
    for (const int position : positions) {
        timings.push_back(TimeChoice(level, position, findings.Choices));
        seconds += timings.back().Seconds;
        searched += SearchedPositions;
    }
    findings.Searched += searched;
    std::ranges::sort(timings, {}, &Timing::Seconds);
    const Timing& worst = timings.back();
    std::printf("%5d  %10.3f ms  %10.3f ms  %10.3f ms  %12" PRIu64 "  %s\n", level,
                timings[timings.size() / 2].Seconds * 1000, worst.Seconds * 1000, seconds * 1000,
                searched, BenchPositionLabel(worst.Position).c_str());
    std::fflush(stdout);
}

// ---- The command line ----

struct Options {
    std::vector<Int16> Levels;
    std::vector<int> Positions;
    std::optional<Signature> Expected;
    std::optional<std::uint64_t> MostSearched;
};

constexpr std::uint64_t Unlimited = std::numeric_limits<std::uint64_t>::max();

bool ReadLevel(std::string_view text, Options& options) {
    const auto level = ReadNumber<Int16>(text, 1, MaxPly);
    if (level) options.Levels.push_back(*level);
    return level.has_value();
}

bool ReadPieces(std::string_view text, Options& options) {
    options.Positions = BenchPositionsWith(ReadNumber<int>(text, 1, MaxPieces).value_or(0));
    return !options.Positions.empty();
}

bool ReadExpected(std::string_view text, Options& options) {
    options.Expected = ReadNumber<Signature>(text, 0, Unlimited, 16);
    return options.Expected.has_value();
}

bool ReadMostSearched(std::string_view text, Options& options) {
    options.MostSearched = ReadNumber<std::uint64_t>(text, 0, Unlimited);
    return options.MostSearched.has_value();
}

/// What an argument stands for. Where it is an option, the next argument is its value.
struct Argument {
    std::string_view Name;
    bool (*Read)(std::string_view text, Options& options);
    const char* Complaint;
};

constexpr std::array<Argument, 4> Arguments{{
    {"--pieces", ReadPieces, "--pieces needs 2, 4, 6, 8, 10 or 12"},
    {"--expect", ReadExpected, "--expect needs a hexadecimal number of 64 bits"},
    {"--at-most", ReadMostSearched, "--at-most needs a whole number"},
    {"", ReadLevel, "what is no option must be a level, 1 to 11"},
}};

const Argument& ArgumentCalled(std::string_view name) {
    const auto found = std::ranges::find(Arguments, name, &Argument::Name);
    return found != Arguments.end() ? *found : Arguments.back();
}

/// The complaint about the first argument that makes no sense, or nullptr.
const char* ReadArguments(std::span<char*> texts, Options& options) {
    for (std::size_t i = 0; i < texts.size(); ++i) {
        const Argument& argument = ArgumentCalled(texts[i]);
        const bool isOption = !argument.Name.empty();
        if (isOption) ++i;
        if (i == texts.size() || !argument.Read(texts[i], options)) return argument.Complaint;
    }
    return nullptr;
}

void CompleteOptions(Options& options) {
    if (options.Levels.empty()) {
        for (Int16 level = 1; level <= MaxPly; ++level) options.Levels.push_back(level);
    }
    if (options.Positions.empty()) {
        for (int n = 1; n <= BenchPositionCount; ++n) options.Positions.push_back(n);
    }
}

// ---- The whole run ----

Findings BenchLevels(const Options& options) {
    Findings findings;
    std::printf("level         median          worst            all     positions  worst in\n");
    for (const Int16 level : options.Levels) BenchLevel(level, options.Positions, findings);
    std::printf("all positions %" PRIu64 "\nsignature %016" PRIx64 "\n", findings.Searched,
                findings.Choices);
    return findings;
}

int CheckFindings(const Findings& findings, const Options& options) {
    if (options.Expected && findings.Choices != *options.Expected) {
        std::fprintf(stderr,
                     "The computer plays differently: the signature should be %016" PRIx64 ".\n",
                     *options.Expected);
        return Unexpected;
    }
    if (options.MostSearched && findings.Searched > *options.MostSearched) {
        std::fprintf(stderr,
                     "The search does more work: it looked at %" PRIu64
                     " positions, more than %" PRIu64 ".\n",
                     findings.Searched, *options.MostSearched);
        return Unexpected;
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::span<char*> texts(argv + 1, argv + argc);
    if (std::ranges::find(texts, std::string_view("--help")) != texts.end()) {
        std::fputs(Usage, stdout);
        return 0;
    }
    Options options;
    if (const char* complaint = ReadArguments(texts, options)) {
        std::fprintf(stderr, "brastel-bench: %s\n\n%s", complaint, Usage);
        return BadArguments;
    }
    CompleteOptions(options);
    return CheckFindings(BenchLevels(options), options);
}
