#include "engine/Random.h"

#include <chrono>
#include <random>

namespace brastel {

namespace {

std::mt19937 Generator;

}  // namespace

void SeedRandom(std::uint32_t seed) { Generator.seed(seed); }

void ReseedRandom() {
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    SeedRandom(static_cast<std::uint32_t>(ticks ^ (ticks >> 32)));
}

/// The standard distributions differ between libraries; this division does not.
Int16 RandomBelow(Int16 n) {
    return static_cast<Int16>(static_cast<double>(Generator()) / 4294967296.0 * n);
}

}  // namespace brastel
