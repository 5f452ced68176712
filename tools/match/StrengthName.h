#pragma once

#include "engine/Strengths.h"

#include <string>

namespace brastel {

/// The name of a level from 1 to 11, for example Easy or GrandMaster.
inline std::string StrengthName(int level) {
    std::string name(Strengths.at(static_cast<std::size_t>(level - 1)).Caption);
    std::erase(name, '&');
    return name;
}

}  // namespace brastel
