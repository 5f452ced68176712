#pragma once

#include <QWidget>

/// The board for screen readers and other assistive technology. The children of the view are its
/// 112 squares, the two turn circles, the announcement, and then its controls.
namespace brastel {

/// Makes Qt describe every board view in this way. May be called again.
void InstallBoardAccessible();

// ---- Notifications of assistive technology ----
/// The content of a square of the board has changed.
void NotifySquareChanged(QWidget& boardView, int square);
/// The keyboard focus is on this square of the board.
void NotifySquareFocused(QWidget& boardView, int square);
void NotifyTurnChanged(QWidget& boardView);
/// Makes screen readers read the text out.
void NotifyAnnouncement(QWidget& boardView, const QString& text);

}  // namespace brastel
