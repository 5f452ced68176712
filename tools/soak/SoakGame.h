#pragma once

#include <cstdint>

namespace brastel {

/// Plays one game, which is the same for the same seed and layout, and checks everything after each
/// action. Throws Inconsistency at the first fault. Counts in the tally.
void PlaySoakGame(std::uint32_t seed, int layout);

}  // namespace brastel
