#pragma once

#include <QIcon>

namespace brastel {

/// The icon of the application: a magenta bead with a black ring, and a cyan bead behind it.
/// It has pixmaps of 16, 24, 32, 48, 64, 128 and 256 device pixels with a transparent background,
/// each painted for its own size. Needs a QGuiApplication, on the GUI thread.
QIcon ApplicationIcon();

}  // namespace brastel
