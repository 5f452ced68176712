/// Plays the gestures that the bytes draw. An input that is too short is read again from its start.

#include "core/StartPosition.h"
#include "fuzz/FuzzTarget.h"
#include "testing/Headless.h"
#include "testing/RandomSource.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace brastel;
    if (size == 0) return 0;
    // The factor lets numbers above 255 be drawn, too.
    RandomSource = [=, next = std::size_t{0}]() mutable { return data[next++ % size] * 257U; };
    StartProgram(Roll(LayoutCount));
    BeginPlaying();
    Play(std::clamp(static_cast<int>(size / 2), 50, 150));
    return 0;
}
