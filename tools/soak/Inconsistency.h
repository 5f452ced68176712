#pragma once

#include <string>

namespace brastel {

/// Something that must never be. It ends the game that is being played, and the run.
struct Inconsistency {
    std::string What;
};

inline void Require(bool holds, const char* otherwise) {
    if (!holds) throw Inconsistency{otherwise};
}

}  // namespace brastel
