/// Plays very many games and checks everything after every action.

#include "core/StartPosition.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/SoakGame.h"
#include "tools/soak/Tally.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <string_view>

namespace {

using namespace brastel;

constexpr const char* Usage = R"(Usage: brastel-soak [OPTION...]

Plays games in all start layouts and free setups, by people at random, against the computer and by
the computer alone, and checks after every action: the position, that the computer's candidates and
people's rules agree but for the differences named in engine/Candidates.h, that an action leads to
the same position however it is played, that the record leads to the position, and that a step back
and forward leads nowhere. Prints how often everything happened.

  --games N    play N games (10000)
  --first K    begin with game K (1)
  --seed S     other games for each S (1)
  --layout L   only in start layout L, 0 to 6 (all in turn); 6 is the free setup
  --help       show this text

Status: 0 if nothing is wrong; 1 at the first inconsistency, whose game is printed, and if some kind
of event never happened in 2000 games of all layouts or more; 2 for bad arguments.
)";

constexpr int FoundFault = 1;
constexpr int BadArguments = 2;

constexpr int AllLayouts = -1;

struct Options {
    std::int64_t Games = 10000;
    std::int64_t First = 1;
    std::int64_t Seed = 1;
    std::int64_t Layout = AllLayouts;
};

struct Option {
    std::string_view Name;
    std::int64_t Options::*Value;
    std::int64_t Least;
    std::int64_t Most;
};

constexpr std::int64_t Plenty = 1'000'000'000'000;

constexpr std::array<Option, 4> KnownOptions{{
    {"--games", &Options::Games, 1, Plenty},
    {"--first", &Options::First, 1, Plenty},
    {"--seed", &Options::Seed, 0, Plenty},
    {"--layout", &Options::Layout, 0, LayoutCount - 1},
}};

bool ReadValue(const Option& option, std::string_view text, Options& options) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) return false;
    options.*option.Value = value;
    return value >= option.Least && value <= option.Most;
}

bool ReadOptions(int count, char** texts, Options& options) {
    for (int i = 1; i < count; i += 2) {
        const auto* option = std::ranges::find(KnownOptions, texts[i], &Option::Name);
        if (option == KnownOptions.end()) {
            std::fprintf(stderr, "brastel-soak: unknown option %s; see --help\n", texts[i]);
            return false;
        }
        if (i + 1 == count || !ReadValue(*option, texts[i + 1], options)) {
            std::fprintf(stderr, "brastel-soak: %s needs a number from %lld to %lld\n", texts[i],
                         static_cast<long long>(option->Least),
                         static_cast<long long>(option->Most));
            return false;
        }
    }
    return true;
}

/// A seed for each game: those of neighbours have nothing in common.
std::uint32_t SeedOf(std::int64_t seed, std::int64_t game) {
    std::uint64_t mixed =
        static_cast<std::uint64_t>(seed) * 0x9e3779b97f4a7c15 + static_cast<std::uint64_t>(game);
    mixed = (mixed ^ mixed >> 30) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ mixed >> 27) * 0x94d049bb133111eb;
    return static_cast<std::uint32_t>(mixed >> 32);
}

void ReportFault(const Inconsistency& fault, const Options& options, std::int64_t game,
                 int layout) {
    std::printf("INCONSISTENT: %s\n%sAlone: brastel-soak --seed %lld --first %lld --games 1",
                fault.What.c_str(), DescribedGame().c_str(), static_cast<long long>(options.Seed),
                static_cast<long long>(game));
    if (options.Layout != AllLayouts) std::printf(" --layout %d", layout);
    std::printf("\n");
}

using Clock = std::chrono::steady_clock;

/// A line every ten seconds.
void ReportProgress(std::int64_t played, const Options& options, Clock::time_point start) {
    static auto next = start;
    const auto now = Clock::now();
    if (now < next + std::chrono::seconds(10)) return;
    next = now;
    const double seconds = std::chrono::duration<double>(now - start).count();
    std::fprintf(stderr, "%lld of %lld games, %.0f s\n", static_cast<long long>(played),
                 static_cast<long long>(options.Games), seconds);
}

bool PlayAll(const Options& options) {
    const auto start = Clock::now();
    for (std::int64_t played = 0; played < options.Games; ++played) {
        const std::int64_t game = options.First + played;
        const int layout =
            static_cast<int>(options.Layout == AllLayouts ? game % LayoutCount : options.Layout);
        try {
            PlaySoakGame(SeedOf(options.Seed, game), layout);
        } catch (const Inconsistency& fault) {
            ReportFault(fault, options, game, layout);
            return false;
        }
        if (played % 64 == 0) ReportProgress(played, options, start);
    }
    const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
    std::fprintf(stderr, "%.1f s, %.3f ms a game\n", seconds,
                 seconds * 1000 / static_cast<double>(options.Games));
    return true;
}

constexpr std::int64_t EnoughGames = 2000;

/// A long run that never saw some kind of event has proved nothing about it.
bool HasSeenAll(const Options& options) {
    if (options.Layout != AllLayouts || options.Games < EnoughGames) return true;
    const std::string missing = FirstMissing();
    if (!missing.empty()) std::printf("There were no %s.\n", missing.c_str());
    return missing.empty();
}

}  // namespace

int main(int count, char** texts) {
    if (count == 2 && std::string_view(texts[1]) == "--help") {
        std::fputs(Usage, stdout);
        return 0;
    }
    Options options;
    if (!ReadOptions(count, texts, options)) return BadArguments;
    if (!PlayAll(options)) return FoundFault;
    std::printf("%12lld  games\n%s", static_cast<long long>(options.Games), TallyLines().c_str());
    if (!HasSeenAll(options)) return FoundFault;
    std::puts("No inconsistency.");
    return 0;
}
