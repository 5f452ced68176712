#pragma once

#include "tools/record/Review.h"

#include <string>

/// The review of a game as text for people, as JSON for programs and as a picture.
namespace brastel {

/// A table of the entries, the worst moves in words, and the sum of each side.
std::string ReviewAsText(const RecordedGame& game, const GameReview& review);

/// One JSON object. brastel-record(6) describes its fields.
std::string ReviewAsJson(const GameReview& review);

/// An SVG picture with the curve of the values. The worst moves are marked and have titles for
/// screen readers.
std::string ReviewAsSvg(const RecordedGame& game, const GameReview& review);

/// "+1.2", or "Red wins" from SureValue on.
std::string ValueInWords(RedValue value);

/// "Red piece 3 from row 9, column 4 to row 7, column 4 loses 1.2 points, better: ...".
std::string MistakeInWords(const RecordedGame& game, const GameReview& review, int entry);

}  // namespace brastel
