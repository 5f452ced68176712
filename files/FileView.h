#pragma once

#include <string>

namespace brastel {

/// The operations of windows that the file commands use. Texts are UTF-8. Here they do nothing; a
/// window overrides them.
class FileView {
public:
    FileView() = default;
    virtual ~FileView() = default;
    FileView(const FileView&) = delete;
    FileView& operator=(const FileView&) = delete;

    /// Hides the main window, and later shows it with a new game of the current start tables.
    virtual void CloseMainWindow() {}
    virtual void OpenMainWindow() {}

    /// Shows a box with Yes and No and without an icon. No is the default button. True for Yes.
    virtual bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) {
        return false;
    }
    /// Shows a box with the exclamation icon.
    virtual void ShowWarning(const std::string& /*text*/, const std::string& /*title*/) {}

    /// The folder of the program. Usually the user may not write there, so a save by name would
    /// fail: then the documents folder or, if that is not writable either, the home folder.
    virtual std::string ProgramFolder() const { return {}; }
};

/// The view that the file commands use. Never null.
extern FileView* FileWindows;

/// Sets the view. Null sets a view that shows nothing.
void SetFileView(FileView* view);

}  // namespace brastel
