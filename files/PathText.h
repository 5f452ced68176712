#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// Paths as UTF-8 texts on every system. On Windows the conversions of the standard library would
/// use the code page of the user.
namespace brastel {

inline std::filesystem::path PathOf(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

inline std::string TextOf(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

}  // namespace brastel
