#pragma once

#include <string>

/// What the tables are made of.
namespace brastel {

/// As printf does, up to 255 bytes.
[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);

/// Filled up to a width in characters on the left, or for a negative width on the right. Longer
/// text stays as it is.
std::string Padded(const std::string& text, int width);

/// A time as the tables have it: in milliseconds, to the microsecond.
std::string Milliseconds(double seconds);

}  // namespace brastel
