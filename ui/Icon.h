#pragma once

#include <QIcon>

namespace brastel {

/// The icon of the application: a magenta bead carrying a black ring, a cyan bead behind it.
/// It holds pixmaps of 16, 24, 32, 48, 64, 128 and 256 device pixels on a transparent ground,
/// each painted for its own size. Needs a QGuiApplication, on the GUI thread.
QIcon ApplicationIcon();

}  // namespace brastel
