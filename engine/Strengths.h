#pragma once

#include "engine/Candidates.h"

#include <array>
#include <string_view>

namespace brastel {

/// A strength of the computer player: it is nothing but the depth of the search.
struct Strength {
    /// The menu item and its caption, in which & marks the access key.
    std::string_view Item;
    std::string_view Caption;
    /// Plies that the search looks ahead.
    Int16 Depth;
};

constexpr Int16 EasyDepth = 1;
/// What a hint searches when two people play.
constexpr Int16 HintDepth = 3;

/// In menu order.
constexpr std::array<Strength, MaxPly> Strengths{{
    {"mnu_Easy", "&Easy", EasyDepth},
    {"mnu_Medium", "&Medium", 2},
    {"mnu_Difficult", "&Difficult", 3},
    {"mnu_Advanced", "&Advanced", 4},
    {"mnu_Expert", "Ex&pert", 5},
    {"mnu_Master", "Ma&ster", 6},
    {"mnu_GrandMaster", "&GrandMaster", 7},
    {"mnu_King", "&King", 8},
    {"mnu_Emperor", "Empe&ror", 9},
    {"mnu_Angel", "An&gel", 10},
    {"mnu_God", "G&od", 11},
}};

}  // namespace brastel
