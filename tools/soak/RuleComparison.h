#pragma once

#include "core/Position.h"

namespace brastel {

/// True if people may give the ring to the piece now.
bool AcceptsRing(Piece piece);

/// Lists the candidates of the position in row 1 and compares them with what the rules of people
/// accept: any piece of either side acting on any square, or getting a ring. Every difference must
/// be one of those that Candidates.h names, and every candidate must fit the position.
/// `byHand` if the pieces were placed by hand.
void CompareRules(bool byHand);

}  // namespace brastel
