#pragma once

#include <QObject>

#include <functional>

/// How the commands of buttons, menus and assistive technology are run.
namespace brastel {

/// Runs the command after the current event. The caller does not wait for the end of the command,
/// which can include a search or a dialog. The command is ignored while the computer thinks and
/// while a modal dialog is open. Assistive technology can call it even then, and the user could not
/// leave the dialog of a second command. Nothing happens after `context` is destroyed.
void RunLater(QObject* context, const std::function<void()>& command);

}  // namespace brastel
