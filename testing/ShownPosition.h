#pragma once

#include <QImage>

#include <string>

namespace brastel {

/// Compares a picture of the board view with the position: the piece and the ring of every square
/// and the turn circles. Names the first thing that is shown otherwise; empty when there is none.
std::string FirstWrongShown(const QImage& picture);

}  // namespace brastel
