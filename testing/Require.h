#pragma once

#include <map>
#include <stdexcept>
#include <string>

/// How checks report faults, and what they count.
namespace brastel {

/// Throws an exception with the text unless the condition holds.
inline void Require(bool holds, const std::string& otherwise) {
    if (!holds) throw std::logic_error(otherwise);
}

/// How often each kind of event happened: a run is only valid if all kinds did.
inline std::map<std::string, long long> Tally;

/// The number of kinds that are counted.
constexpr std::size_t KindsOfEvent = 19;

inline void Count(const char* kind, bool happened = true) {
    if (happened) ++Tally[kind];
}

}  // namespace brastel
