#pragma once

#include "engine/Strengths.h"

#include <string>

namespace brastel {

/// As in Easy or GrandMaster, for 1 to 11.
inline std::string StrengthName(int level) {
    std::string name(Strengths.at(static_cast<std::size_t>(level - 1)).Caption);
    std::erase(name, '&');
    return name;
}

}  // namespace brastel
