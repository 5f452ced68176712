#pragma once

#include <map>
#include <stdexcept>
#include <string>

/// What all checks report to.
namespace brastel {

/// Something that must never be: it ends the game that is being played, and the run.
inline void Require(bool holds, const std::string& otherwise) {
    if (!holds) throw std::logic_error(otherwise);
}

/// How often everything happened, so that a run shows that it has looked at all of it.
inline std::map<std::string, long long> Tally;

/// As many kinds are counted in all.
constexpr std::size_t KindsOfEvent = 19;

inline void Count(const char* kind, bool happened = true) {
    if (happened) ++Tally[kind];
}

}  // namespace brastel
