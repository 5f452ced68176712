#pragma once

#include <cstddef>
#include <cstdint>

/// What does not hold is thrown and ends the run; the fuzzer keeps the input.
///
/// A target judges every input by itself, so it first puts everything back that an earlier input
/// may have changed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
/// Called once before the first input.
extern "C" int LLVMFuzzerInitialize(int* count, char*** words);
