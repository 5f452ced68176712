#pragma once

#include "files/FileView.h"
#include "play/GameView.h"

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>

#include <array>

namespace brastel {

class Announcer;
class BoardView;
class KeyboardInput;
class MouseInput;

/// frm_Tamber, the main window. While it exists it is the view of the game and of the file
/// commands.
class MainWindow final : public QMainWindow, public GameView, public FileView {
public:
    MainWindow();
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    // ---- GameView ----
    void PlacePieces() override;
    void ShowMessage(std::string_view text) override;
    void ShowTurn(Int16 side) override;
    void Beep() override;
    void AnnounceRefusal(std::string_view why) override;
    void ShowForward(bool visible) override;
    void ShowBackward(bool visible) override;
    void ShowBusy(bool busy) override;
    void HandleEvents() override;
    bool IsClosing() const override { return Closing; }
    void ShowBoardTexts() override;
    void ShowCandidateCount(Int16 count) override;

    // ---- FileView ----
    void CloseMainWindow() override;
    /// Shows the window centred, with a new game of the current start layout at the lowest
    /// strength.
    void OpenMainWindow() override;
    bool AskYesOrNo(const std::string& text, const std::string& title) override;
    void ShowWarning(const std::string& text, const std::string& title) override;
    std::string ProgramFolder() const override;

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Ignores all input, in every window of the program, while the computer thinks.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildWindow();
    void BuildSidePanel();
    void BuildHiddenControls();
    void FixSize();
    void ConnectInput();
    void EndGestures();
    void ShowStepButton(QPushButton& button, bool visible);

    BoardView* Form = nullptr;
    MouseInput* Mouse = nullptr;
    KeyboardInput* Keyboard = nullptr;
    Announcer* Announcements = nullptr;
    QMenu* Levels = nullptr;
    bool Closing = false;

    QPushButton* btn_Forward = nullptr;
    QPushButton* btn_Backward = nullptr;
    QPushButton* btn_Hint = nullptr;
    QLabel* lbl_Message = nullptr;
    /// Hidden text boxes. Their property "text" holds the cells and the candidate count. They are
    /// not line edits: a hidden line edit still sends each change of its text to assistive
    /// technology, and so many events make screen readers stop listening.
    std::array<QWidget*, 113> Text1{};
    std::array<QWidget*, 33> Text2{};
};

}  // namespace brastel
