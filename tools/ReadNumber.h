#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>

namespace brastel {

/// The whole number that the text is, unless it is none or lies beyond the bounds.
inline std::optional<std::int64_t> ReadNumber(std::string_view text, std::int64_t least,
                                              std::int64_t most) {
    std::int64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    const bool isRight = error == std::errc() && stop == end && number >= least && number <= most;
    return isRight ? std::optional(number) : std::nullopt;
}

}  // namespace brastel
