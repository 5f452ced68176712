/// Plays very many games and checks everything after every action.

#include "core/StartPosition.h"
#include "play/GameRecord.h"
#include "play/GameState.h"
#include "tests/Positions.h"
#include "tools/GameSeed.h"
#include "tools/ReadNumber.h"
#include "tools/soak/Inconsistency.h"
#include "tools/soak/SoakGame.h"
#include "tools/soak/Tally.h"

#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>

namespace {

using namespace brastel;

constexpr const char* Usage = R"(Usage: brastel-soak [OPTION...]

Plays games in all start layouts and free setups, by people at random, against the computer and by
the computer alone, and checks after every action: the position, that the computer's candidates and
people's rules agree but for the differences named in engine/Candidates.h, that an action leads to
the same position however it is played, that the record leads to the position, and that a step back
and forward leads nowhere. Prints how often everything happened.

  --games N  play N games (10000)
  --first K  begin with game K (1)
  --seed S   other games for each S (1)
  --help     show this text

Status: 0 if nothing is wrong; 1 at the first inconsistency, whose game is printed, and if some kind
of event never happened in 2000 games or more; 2 for bad arguments.
)";

constexpr int FoundFault = 1;
constexpr int BadArguments = 2;

constexpr std::int64_t GamesBetweenReports = 10000;
constexpr std::int64_t EnoughGames = 2000;

struct Options {
    std::int64_t Games = 10000;
    std::int64_t First = 1;
    std::int64_t Seed = 1;
};

constexpr std::array<std::pair<std::string_view, std::int64_t Options::*>, 3> Names{{
    {"--games", &Options::Games},
    {"--first", &Options::First},
    {"--seed", &Options::Seed},
}};

bool ReadOption(std::string_view name, std::string_view text, Options& options) {
    constexpr std::int64_t Plenty = 1'000'000'000'000;
    const auto number = ReadNumber(text, 1, Plenty);
    for (const auto& [known, value] : Names) {
        if (name != known || !number) continue;
        options.*value = *number;
        return true;
    }
    return false;
}

bool ReadOptions(int count, char** texts, Options& options) {
    for (int i = 1; i < count; i += 2) {
        const char* value = i + 1 < count ? texts[i + 1] : "";
        if (ReadOption(texts[i], value, options)) continue;
        std::fprintf(stderr, "brastel-soak: cannot use \"%s %s\"; see --help\n", texts[i], value);
        return false;
    }
    return true;
}

/// The game's entries and its position, and how to play it alone.
void ReportFault(const Inconsistency& fault, const Options& options, std::int64_t game) {
    std::printf("INCONSISTENT: %s\nentries:", fault.What.c_str());
    for (int k = 1; k < Pos.MoveCount && k <= MaxEntries; ++k) {
        std::printf(" %d-%d", PlayedFrom[k], PlayedTo[k]);
    }
    std::printf("\nposition: %s, level %d\n", Listed().c_str(), Level);
    std::printf("Alone: brastel-soak --seed %" PRId64 " --first %" PRId64 " --games 1\n",
                options.Seed, game);
}

bool PlayAll(const Options& options) {
    for (std::int64_t played = 0; played < options.Games; ++played) {
        const std::int64_t game = options.First + played;
        try {
            const std::uint32_t seed =
                SeedOf(static_cast<std::uint64_t>(options.Seed), static_cast<std::uint64_t>(game));
            PlaySoakGame(seed, static_cast<int>(game % LayoutCount));
        } catch (const Inconsistency& fault) {
            ReportFault(fault, options, game);
            return false;
        }
        if ((played + 1) % GamesBetweenReports == 0) {
            std::fprintf(stderr, "%" PRId64 " of %" PRId64 " games\n", played + 1, options.Games);
        }
    }
    return true;
}

/// A long run that never saw some kind of event has proved nothing about it.
bool HasSeenAll(const Options& options) {
    if (options.Games < EnoughGames) return true;
    const auto missing = std::ranges::find(Tallies, 0, &Tally::Times);
    if (missing == Tallies.end()) return true;
    std::printf("There were no %s.\n", (*missing)->Name);
    return false;
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
    std::printf("%12" PRId64 "  games\n", options.Games);
    for (const Tally* tally : Tallies) std::printf("%12lld  %s\n", tally->Times, tally->Name);
    if (!HasSeenAll(options)) return FoundFault;
    std::puts("No inconsistency.");
    return 0;
}
