#include "files/FolderContent.h"

#include "files/PathText.h"

#include <algorithm>
#include <filesystem>

namespace brastel {

namespace {

namespace fs = std::filesystem;

constexpr char Separator = static_cast<char>(fs::path::preferred_separator);

/// Length in bytes of the UTF-8 character at the start of a text that is not empty. 1 for a byte
/// that is not UTF-8.
std::size_t CharacterLength(std::string_view text) {
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U) {
        ++length;
    }
    return length;
}

/// When a match fails, only the last star is tried with one more character. So the time grows at
/// most with the length of the name times the length of the pattern.
bool MatchesOne(std::string_view name, std::string_view pattern) {
    std::string_view afterStar;
    std::string_view retry;
    bool hasStar = false;
    while (!name.empty()) {
        if (!pattern.empty() && pattern.front() == '*') {
            pattern.remove_prefix(1);
            hasStar = true;
            afterStar = pattern;
            retry = name;
        } else if (!pattern.empty() && pattern.front() == '?') {
            pattern.remove_prefix(1);
            name.remove_prefix(CharacterLength(name));
        } else if (!pattern.empty() && pattern.front() == name.front()) {
            pattern.remove_prefix(1);
            name.remove_prefix(1);
        } else if (hasStar) {
            retry.remove_prefix(CharacterLength(retry));
            name = retry;
            pattern = afterStar;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of('*') == std::string_view::npos;
}

bool IsHidden(std::string_view name) { return name.starts_with('.'); }

/// Names of the entries that `isWanted` accepts. Empty if the folder cannot be read.
template <typename Condition>
std::vector<std::string> NamesIn(const std::string& folder, Condition isWanted) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator entry(PathOf(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::string name = TextOf(entry->path().filename());
        if (isWanted(*entry, name)) names.push_back(std::move(name));
    }
    std::ranges::sort(names);
    return names;
}

}  // namespace

bool IsPattern(std::string_view text) { return text.find_first_of("*?") != std::string_view::npos; }

bool MatchesPattern(std::string_view name, std::string_view patterns) {
    while (!patterns.empty()) {
        const std::size_t end = std::min(patterns.find(';'), patterns.size());
        const std::string_view pattern = patterns.substr(0, end);
        patterns.remove_prefix(std::min(end + 1, patterns.size()));
        if (IsHidden(name) && !IsHidden(pattern)) continue;
        if (pattern == AllFiles || MatchesOne(name, pattern)) return true;
    }
    return false;
}

std::vector<std::string> FilesIn(const std::string& folder, std::string_view patterns) {
    return NamesIn(folder, [patterns](const fs::directory_entry& entry, const std::string& name) {
        std::error_code error;
        return MatchesPattern(name, patterns) && entry.is_regular_file(error);
    });
}

std::vector<std::string> FoldersIn(const std::string& folder) {
    return NamesIn(folder, [](const fs::directory_entry& entry, const std::string& name) {
        std::error_code error;
        return !IsHidden(name) && entry.is_directory(error);
    });
}

std::string JoinPath(std::string_view folder, std::string_view name) {
    std::string path(folder);
    if (!path.ends_with(Separator)) path += Separator;
    return path.append(name);
}

}  // namespace brastel
