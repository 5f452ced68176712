#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string_view>
#include <type_traits>

namespace brastel {

/// The whole number in the text. Nothing if it is not one, or not from `least` to `most`.
template <typename Number = std::int64_t>
std::optional<Number> ReadNumber(std::string_view text, std::type_identity_t<Number> least,
                                 std::type_identity_t<Number> most, int base = 10) {
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    const bool isRight = error == std::errc() && stop == end && number >= least && number <= most;
    return isRight ? std::optional(number) : std::nullopt;
}

}  // namespace brastel
