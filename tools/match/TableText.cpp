#include "tools/match/TableText.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>

namespace brastel {

namespace {

/// The number of characters. A character can have several bytes.
int WidthOf(const std::string& text) {
    const auto begins = [](char byte) { return (byte & 0xC0) != 0x80; };
    return static_cast<int>(std::ranges::count_if(text, begins));
}

}  // namespace

std::string Format(const char* format, ...) {
    char text[256];
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

std::string Padded(const std::string& text, int width) {
    const int missing = std::max(0, std::abs(width) - WidthOf(text));
    const std::string spaces(static_cast<std::size_t>(missing), ' ');
    return width < 0 ? text + spaces : spaces + text;
}

std::string Milliseconds(double seconds) { return Format("%.3f", seconds * 1000); }

}  // namespace brastel
