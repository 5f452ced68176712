#pragma once

#include "files/FileChooser.h"
#include "files/FileView.h"
#include "play/GameView.h"

#include <QLabel>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>

#include <array>

namespace brastel {

class Announcer;
class BoardInput;
class BoardView;
class KeyboardInput;
class MouseInput;

/// frm_Tamber, the program's one working window, and the view that the game and the file commands
/// speak to while it lives.
class MainWindow final : public QMainWindow, public GameView, public FileView {
public:
    MainWindow();
    ~MainWindow() override;
    MainWindow(const MainWindow&) = delete;
    MainWindow& operator=(const MainWindow&) = delete;

    /// Shows the window as new: centred, a new game with the pieces and layout in force, lowest
    /// strength.
    void OpenMainWindow() override;

    // ---- Menu commands that open windows ----
    void LoadGameCommand();
    void SaveGameCommand();
    void RulesCommand();
    /// Takes the window down, lets the user choose a layout, and opens it again.
    void ChangePieceNumberCommand();
    /// Closes the window, which ends the program.
    void ExitCommand();

    // ---- GameView ----
    void PlacePieces() override;
    void ShowMessage(std::string_view text) override;
    void ShowTurn(Int16 side) override;
    void Beep() override;
    void TellRefusal(std::string_view why) override;
    void ShowForward(bool visible) override;
    void ShowBackward(bool visible) override;
    void ShowBusy(bool busy) override;
    void HandleEvents() override;
    bool IsClosing() const override { return Closing; }
    void ShowBoardTexts() override;
    void ShowCandidateCount(Int16 count) override;

    // ---- FileView ----
    void CloseMainWindow() override;
    bool AskYesOrNo(const std::string& text, const std::string& title) override;
    void ShowWarning(const std::string& text, const std::string& title) override;
    std::string DocumentsFolder() const override;

protected:
    void closeEvent(QCloseEvent* event) override;
    /// Drops what the user does while the computer thinks, wherever in the program it arrives.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void BuildWindow();
    void BuildSidePanel();
    void BuildHiddenControls();
    void FixSize();
    void ConnectInput();
    void LetGo();
    void ConnectGestures(const BoardInput& input);
    void ShowStepButton(QPushButton& button, bool visible);
    /// Runs the file dialog; closing it by its close box closes this window, too. False then.
    bool RunFileDialog(ChooserMode mode);

    BoardView* Form = nullptr;
    MouseInput* Mouse = nullptr;
    KeyboardInput* Keyboard = nullptr;
    Announcer* Voice = nullptr;
    QMenu* Levels = nullptr;
    bool Closing = false;

    QPushButton* btn_Forward = nullptr;
    QPushButton* btn_Backward = nullptr;
    QPushButton* btn_Hint = nullptr;
    QLabel* lbl_Message = nullptr;
    /// Text boxes never seen: they mirror the cells and the candidate count, each in its property
    /// "text". Real line edits would tell assistive technology of every text, seen or not, and
    /// screen readers stop listening in such a flood.
    std::array<QWidget*, 113> Text1{};
    std::array<QWidget*, 33> Text2{};
};

}  // namespace brastel
