#pragma once

#include <QObject>

#include <functional>

/// Commands that people give by buttons and menus, or by way of assistive technology.
namespace brastel {

/// Runs the command after the event under way, so that nobody who called waits for its end, which
/// can be that of a search or a dialog. It is dropped while the computer thinks and while a modal
/// dialog is open: assistive technology reaches past both, and the dialog of a second command could
/// not be left. Nothing happens once `context` is gone.
void RunLater(QObject* context, const std::function<void()>& command);

}  // namespace brastel
