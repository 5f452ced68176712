#pragma once

#include "engine/CandidateSet.h"
#include "engine/PlySave.h"

/// The last digits of values at the root. The rules of play compute with `double`: values that are
/// equal in units can differ in the last digit there, and this decides which candidates are tied.
namespace brastel {

/// The value of a candidate as `double` arithmetic gives it, once its exact value in units is
/// known: the highest result of all lines that reach this value. These can be very many, so lines
/// that cannot lead above `least` are left out; the result is then any upper bound, at most
/// `least`.
double RoundedValueOf(int ply, const Candidate& candidate, int value, double least,
                      const PlySave& saved);

/// The value of a root candidate in a lost position, where the best candidate is worth less than
/// NoScore: the opponent can leave the side without a candidate. There the search compares with
/// NoScore only, and stops at the first reply that shows the candidate to be worth less, not at the
/// best reply. Needs a depth of 3 at least; at depth 2 no value is so low.
double LostValueOf(const Candidate& candidate, const PlySave& saved);

}  // namespace brastel
