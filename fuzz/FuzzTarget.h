#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

/// What the fuzz targets share: an input, and the end of the run when something does not hold.
///
/// A target judges every input by itself, so it first puts everything back that an earlier input
/// may have changed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
/// Called once before the first input.
extern "C" int LLVMFuzzerInitialize(int* count, char*** words);

namespace brastel {

/// Ends the run with the text unless the condition holds; the fuzzer keeps the input.
inline void Require(bool holds, std::string_view text) {
    if (holds) return;
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    std::abort();
}

/// The bytes of an input from the first to the last; behind them come zeros without end.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size)
        : Bytes(reinterpret_cast<const char*>(data), size) {}

    bool IsOver() const { return Bytes.empty(); }

    /// 0 to 255.
    int Byte() {
        if (Bytes.empty()) return 0;
        const auto byte = static_cast<unsigned char>(Bytes.front());
        Bytes.remove_prefix(1);
        return byte;
    }

    /// first to last, at most 256 numbers.
    int Between(int first, int last) { return first + Byte() % (last - first + 1); }

    /// A byte tells the length of the text behind it.
    std::string Text() {
        const auto length = static_cast<std::size_t>(Byte());
        std::string text(Bytes.substr(0, length));
        Bytes.remove_prefix(text.size());
        return text;
    }

private:
    std::string_view Bytes;
};

}  // namespace brastel
