#pragma once

namespace brastel {

/// Plays random events on the real window, the same for the same seed, looks at it after each, and
/// opens it again whenever it has been closed. Prints how much was done; a failure ends the
/// program.
void PlayMonkey(int events, unsigned seed);

}  // namespace brastel
