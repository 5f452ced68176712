#pragma once

#include "core/Action.h"

#include <string_view>

/// Why people may not act as they tried to, in a few words that fit into a sentence. Any numbers
/// may be passed.
namespace brastel {

/// The first rule that a move, hit or ring pass breaks, or why none can be made at all.
/// Precondition: IsAccepted refuses it, or the record is full.
std::string_view WhyRefused(const Action& action);

/// Why the piece on the square cannot be given the ring. Precondition: PlaceRing refuses it.
std::string_view WhyRingRefused(int square);

}  // namespace brastel
