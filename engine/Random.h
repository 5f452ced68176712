#pragma once

#include "core/Numbers.h"

#include <cstdint>

namespace brastel {

/// Starts the game's only random generator from a seed. The same seed gives the same numbers on
/// every platform.
void SeedRandom(std::uint32_t seed);

/// Starts it from the clock, as every new game does.
void ReseedRandom();

/// A uniform whole number 0 to n - 1; n is at least 1.
Int16 RandomBelow(Int16 n);

}  // namespace brastel
