#pragma once

#include <string>

/// Formatted text for tables.
namespace brastel {

/// Like printf, at most 255 bytes.
[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);

/// Adds spaces on the left up to this width in characters, or on the right if the width is
/// negative. Longer text does not change.
std::string Padded(const std::string& text, int width);

/// A time in milliseconds with three decimals.
std::string Milliseconds(double seconds);

}  // namespace brastel
