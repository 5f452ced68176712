#pragma once

#include <string>

/// What must hold. A failure says what is wrong, removes the scratch folder and ends the
/// program.
namespace brastel {

void Expect(bool isRight, const std::string& otherwise);

/// The main window is as it must stay.
void RememberWindow();

/// The main window's controls agree with the game.
void LookAtGame();

/// The screen shows the position, now or soon.
void LookAtPicture();

/// With nothing open, nothing is left of what was.
void LookAtRest();

/// The program ended by the main window's closing.
void LookAtEnd();

}  // namespace brastel
