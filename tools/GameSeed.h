#pragma once

#include <cstdint>

namespace brastel {

/// The seed of one game of a run. Seeds of consecutive games are independent of each other.
inline std::uint32_t SeedOf(std::uint64_t seed, std::uint64_t game) {
    std::uint64_t mixed = seed * 0x9e3779b97f4a7c15 + game;
    mixed = (mixed ^ mixed >> 30) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ mixed >> 27) * 0x94d049bb133111eb;
    return static_cast<std::uint32_t>(mixed >> 32);
}

}  // namespace brastel
