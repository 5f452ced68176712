#pragma once

#include "engine/Candidates.h"

#include <array>
#include <string>

namespace brastel {

/// The strengths of the computer player, 1 to MaxPly. The number of a strength is the depth of its
/// search in plies.
constexpr std::array<const char*, MaxPly> StrengthNames{
    "Easy",        "Medium", "Difficult", "Advanced", "Expert", "Master",
    "GrandMaster", "King",   "Emperor",   "Angel",    "God"};

inline std::string StrengthName(int level) {
    return StrengthNames.at(static_cast<std::size_t>(level - 1));
}

constexpr Int16 EasyDepth = 1;
/// The depth of a hint when two people play.
constexpr Int16 HintDepth = 3;

}  // namespace brastel
