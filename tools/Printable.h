#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdio>
#include <string>
#include <string_view>

/// Texts for a terminal, without control characters.
namespace brastel {

/// Length in bytes of the first character, or 0 if it must not be printed: a control character, a
/// line separator, a mark that changes the direction of writing, or a byte that is not UTF-8.
inline std::size_t PrintableLength(std::string_view text) {
    struct Range {
        char32_t First;
        char32_t Last;
    };
    constexpr std::array<Range, 5> Hidden{
        {{0, 0x1f}, {0x7f, 0x9f}, {0x2028, 0x202e}, {0x2066, 0x2069}, {0xd800, 0xdfff}}};
    /// The smallest code for each length in bytes. A smaller code is not valid UTF-8.
    constexpr std::array<char32_t, 5> Least{0, 0, 0x80, 0x800, 0x10000};

    const auto lead = static_cast<unsigned char>(text.front());
    const int ones = std::countl_one(lead);
    const std::size_t length = ones == 0 ? 1 : static_cast<std::size_t>(ones);
    if (ones == 1 || length >= Least.size() || length > text.size()) return 0;
    char32_t code = lead & (0xffU >> ones);
    for (const char next : text.substr(1, length - 1)) {
        if ((next & 0xc0) != 0x80) return 0;
        code = code << 6 | (next & 0x3fU);
    }
    const auto holds = [&](const Range& range) {
        return code >= range.First && code <= range.Last;
    };
    return code < Least[length] || std::ranges::any_of(Hidden, holds) ? 0 : length;
}

/// The text for a terminal. Bytes that must not be printed become `\x` and two digits, so that no
/// file name can imitate a message.
inline std::string Printable(std::string_view text) {
    std::string shown;
    while (!text.empty()) {
        const std::size_t length = PrintableLength(text);
        std::array<char, 5> escape{};
        std::snprintf(escape.data(), escape.size(), "\\x%02x",
                      static_cast<unsigned>(static_cast<unsigned char>(text.front())));
        shown += length == 0 ? escape.data() : text.substr(0, length);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    return shown;
}

}  // namespace brastel
