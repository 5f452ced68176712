#pragma once

#include <QImage>

#include <string>

namespace brastel {

/// Compares a picture of the board view with the position: the piece and the ring of every square
/// and the turn circles. Returns the first thing that is shown wrongly, or an empty text.
std::string FirstWrongShown(const QImage& picture);

}  // namespace brastel
