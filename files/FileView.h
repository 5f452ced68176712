#pragma once

#include <string>

namespace brastel {

/// What the file commands need of the windows. Texts are UTF-8. As GameView it does nothing by
/// itself.
class FileView {
public:
    FileView() = default;
    virtual ~FileView() = default;
    FileView(const FileView&) = delete;
    FileView& operator=(const FileView&) = delete;

    /// The main window is taken down and, later, built again for the counts then in force.
    virtual void CloseMainWindow() {}
    virtual void OpenMainWindow() {}

    /// A box with Yes and No, No the default button, no icon. True for Yes.
    virtual bool AskYesOrNo(const std::string& /*text*/, const std::string& /*title*/) {
        return false;
    }
    /// A box with the exclamation icon.
    virtual void ShowWarning(const std::string& /*text*/, const std::string& /*title*/) {}

    /// Where the user keeps documents; the home folder if no such folder can be written to.
    virtual std::string DocumentsFolder() const { return {}; }
};

/// The view that the file commands speak to; never null.
extern FileView* FileWindows;

/// Makes this the view until another one is set; null sets one that shows nothing.
void SetFileView(FileView* view);

}  // namespace brastel
