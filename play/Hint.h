#pragma once

namespace brastel {

/// Plays the best move for the side to move, searched at the current strength (at HintDepth when
/// two people play), and lets the computer answer. In a free setup, and at the end of the record,
/// nothing happens.
void Hint();

}  // namespace brastel
