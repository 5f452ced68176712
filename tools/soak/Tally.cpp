#include "tools/soak/Tally.h"

#include <algorithm>
#include <array>

namespace brastel {

namespace {

/// In the order of Event.
constexpr std::array<const char*, EventCount> Names{
    "ring placements",
    "moves",
    "hits",
    "captures of a ring",
    "ring passes",
    "goal entries",
    "null moves",
    "actions after which pieces came back",
    "refused actions",
    "refused push-backs",
    "hints",
    "answers of the computer",
    "wins",
    "full records",
    "free setups",
    "steps along loaded games",
    "returns that quiet moves leave out",
    "goal entries that only the computer makes",
    "long steps of a carrier that only people make",
    "passes from outside that only people make",
    "ring placements that only the computer makes",
    "ring placements that only people make",
};

std::array<long long, EventCount> Counts{};

}  // namespace

void ClearTally() { Counts = {}; }

void Count(Event event) { ++Counts[static_cast<std::size_t>(event)]; }

std::string TallyLines() {
    std::string lines;
    for (std::size_t n = 0; n < EventCount; ++n) {
        const std::string number = std::to_string(Counts[n]);
        lines += std::string(12 - std::min<std::size_t>(number.size(), 12), ' ') + number + "  " +
                 Names[n] + "\n";
    }
    return lines;
}

std::string FirstMissing() {
    const auto missing = std::ranges::find(Counts, 0);
    return missing == Counts.end() ? "" : Names[static_cast<std::size_t>(missing - Counts.begin())];
}

}  // namespace brastel
