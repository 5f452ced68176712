#include "ui/MainWindow.h"

#include "core/Position.h"
#include "play/GameState.h"
#include "play/Hint.h"
#include "play/Stepping.h"
#include "ui/Announcer.h"
#include "ui/BoardAccessible.h"
#include "ui/BoardView.h"
#include "ui/Command.h"
#include "ui/KeyboardInput.h"
#include "ui/Layout.h"
#include "ui/Menus.h"
#include "ui/MouseInput.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMenuBar>
#include <QMessageBox>
#include <QStandardPaths>

namespace brastel {

namespace {

constexpr double MessagePoints = 9;

constexpr int InnerWidth = 11160;
constexpr int InnerHeight = 9336;

constexpr TwipRect ForwardPlace{8880, 3960, 1212, 492};
constexpr TwipRect BackwardPlace{8880, 4440, 1215, 495};
constexpr TwipRect MessagePlace{7560, 5280, 2292, 372};
constexpr TwipRect HintPlace{8400, 5880, 972, 372};
constexpr TwipRect UndoPlace{7320, 5880, 972, 372};
constexpr std::array<TwipRect, 2> ScorePlaces{{{7920, 3480, 612, 252}, {8880, 3480, 612, 252}}};

bool IsUserInput(QEvent::Type type) {
    switch (type) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::Shortcut:
        case QEvent::ShortcutOverride:
        case QEvent::ContextMenu:
        case QEvent::TouchBegin:
        case QEvent::TouchUpdate:
        case QEvent::TouchEnd:
            return true;
        default:
            return false;
    }
}

/// Screen readers read the tool tip as the description of the button.
QPushButton* NewButton(QWidget* parent, const QString& name, const QString& caption,
                       const TwipRect& place, const QString& help = {}) {
    auto* button = new QPushButton(caption, parent);
    PlaceControl(*button, name, place);
    button->setToolTip(help);
    return button;
}

template <std::size_t Count>
void FillHidden(std::array<QWidget*, Count>& boxes, QWidget* parent, const QString& name) {
    for (std::size_t i = 0; i < Count; ++i) {
        boxes[i] = new QWidget(parent);
        boxes[i]->setObjectName(name + QString::number(i));
        boxes[i]->setEnabled(false);
    }
}

int RunMessageBox(QMessageBox::Icon icon, const std::string& text, const std::string& title,
                  QMessageBox::StandardButtons buttons, QMessageBox::StandardButton standard) {
    QMessageBox box(icon, QString::fromStdString(title), QString::fromStdString(text), buttons,
                    QApplication::activeModalWidget());
    box.setDefaultButton(standard);
    box.setTextFormat(Qt::PlainText);
    box.setFont(JapaneseFont(MessagePoints));
    return box.exec();
}

}  // namespace

MainWindow::MainWindow() {
    InstallBoardAccessible();
    BuildWindow();
    BuildSidePanel();
    BuildHiddenControls();
    Levels = BuildMenus(*this);
    FixSize();
    ConnectInput();
    SetView(this);
    SetFileView(this);
    qApp->installEventFilter(this);
}

MainWindow::~MainWindow() {
    if (View == this) SetView(nullptr);
    if (FileWindows == this) SetFileView(nullptr);
}

void MainWindow::BuildWindow() {
    setObjectName("frm_Tamber");
    setWindowTitle("Brastel");
    setWindowFlags(Qt::Window | Qt::MSWindowsFixedSizeDialogHint | Qt::CustomizeWindowHint |
                   Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                   Qt::WindowCloseButtonHint);
    setPalette(GreyPalette(palette()));
    Form = new BoardView(this);
    setCentralWidget(Form);
}

void MainWindow::BuildSidePanel() {
    btn_Forward = NewButton(Form, "btn_Forward", "Forward", ForwardPlace,
                            "Plays the next move of the loaded game");
    btn_Backward = NewButton(Form, "btn_Backward", "Backward", BackwardPlace,
                             "Takes back one move; the computer then waits");
    btn_Hint =
        NewButton(Form, "btn_Hint", "Hint", HintPlace, "Plays the best move for the side to move");
    lbl_Message = new QLabel(Form);
    PlaceControl(*lbl_Message, "lbl_Message", MessagePlace);
}

/// Controls that belong to the window but are never shown.
void MainWindow::BuildHiddenControls() {
    auto* hidden = new QWidget(Form);
    hidden->hide();
    NewButton(hidden, "btn_Undo", "Undo", UndoPlace);
    for (std::size_t i = 0; i < ScorePlaces.size(); ++i) {
        PlaceControl(*new QLabel(hidden), QString("lbl_Score%1").arg(i), ScorePlaces[i]);
    }
    FillHidden(Text1, hidden, "Text1_");
    FillHidden(Text2, hidden, "Text2_");
}

/// The room of the menu bar is a multiple of 4 logical pixels. At device pixel ratios such as 1.25
/// it is then a whole number of device pixels, and so the board below begins at a whole one. The
/// spare pixels are above the bar: a bar higher than its items has a broken line below them.
void MainWindow::FixSize() {
    const int height = menuBar()->sizeHint().height();
    const int room = (height + 3) / 4 * 4;
    setContentsMargins(0, room - height, 0, 0);
    FixInnerArea(*this, InnerWidth, InnerHeight, room);
}

void MainWindow::ConnectInput() {
    Announcements = new Announcer(Form);
    Mouse = new MouseInput(Form);
    Keyboard = new KeyboardInput(Form, Mouse);
    connect(Keyboard, &KeyboardInput::FocusMoved, this,
            [this](int square) { NotifySquareFocused(*Form, square); });
    connect(Keyboard, &KeyboardInput::Announced, Announcements, &Announcer::Say);
    const std::pair<QPushButton*, void (*)()> commands[] = {
        {btn_Forward, StepForward}, {btn_Backward, StepBack}, {btn_Hint, Hint}};
    for (const auto& [button, command] : commands) {
        connect(button, &QPushButton::clicked, this,
                [this, run = command] { RunLater(this, run); });
    }
}

void MainWindow::OpenMainWindow() {
    CentreOnScreen(*this);
    OpenGame();
    CheckLevel(*Levels, Level);
    show();
}

void MainWindow::PlacePieces() {
    EndGestures();
    Form->update();
    Announcements->FollowPosition();
}

/// Ends every gesture: its piece may be gone, or another piece may be on its square.
void MainWindow::EndGestures() {
    Mouse->Cancel();
    Keyboard->Release();
}

void MainWindow::ShowMessage(std::string_view text) {
    const QString shown = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const QString words = shown.trimmed();
    lbl_Message->setAccessibleName("Status line: " + (words.isEmpty() ? "empty" : words));
    lbl_Message->setText(shown);
    // ThinkingText would be announced only when the computer has finished thinking.
    if (!words.isEmpty() && text != ThinkingText) Announcements->Say(words);
}

void MainWindow::ShowTurn(Int16 side) {
    Form->ShowTurn(side);
    Mouse->ShowCursor();
    NotifyTurnChanged(*Form);
}

void MainWindow::Beep() { QApplication::beep(); }

void MainWindow::AnnounceRefusal(std::string_view why) {
    Announcements->Say(QString::fromUtf8(why.data(), static_cast<qsizetype>(why.size())));
}

void MainWindow::ShowForward(bool visible) { ShowStepButton(*btn_Forward, visible); }

void MainWindow::ShowBackward(bool visible) { ShowStepButton(*btn_Backward, visible); }

/// A hidden button gives the keyboard focus to the board. Qt would give it to the next button: a
/// player who steps back with the space bar would then play hints.
void MainWindow::ShowStepButton(QPushButton& button, bool visible) {
    if (!visible && button.hasFocus()) Form->setFocus();
    button.setVisible(visible);
}

void MainWindow::ShowBusy(bool busy) {
    if (busy) {
        EndGestures();
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void MainWindow::HandleEvents() {
    constexpr int Milliseconds = 10;
    QCoreApplication::processEvents(QEventLoop::AllEvents, Milliseconds);
}

void MainWindow::ShowBoardTexts() {
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        Text1[static_cast<std::size_t>(square)]->setProperty("text",
                                                             QString::number(Pos.Board[square]));
    }
}

void MainWindow::ShowCandidateCount(Int16 count) {
    Text2[0]->setProperty("text", QString::number(count));
}

void MainWindow::CloseMainWindow() { hide(); }

bool MainWindow::AskYesOrNo(const std::string& text, const std::string& title) {
    return RunMessageBox(QMessageBox::NoIcon, text, title, QMessageBox::Yes | QMessageBox::No,
                         QMessageBox::No) == QMessageBox::Yes;
}

void MainWindow::ShowWarning(const std::string& text, const std::string& title) {
    RunMessageBox(QMessageBox::Warning, text, title, QMessageBox::Ok, QMessageBox::Ok);
}

std::string MainWindow::ProgramFolder() const {
    for (const QString& folder :
         {QCoreApplication::applicationDirPath(),
          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)}) {
        if (QFileInfo(folder).isWritable()) return folder.toStdString();
    }
    return QDir::homePath().toStdString();
}

/// May come in the middle of a computer move. During the pause before the search, the window closes
/// at once and no search begins. During the search, it closes when the search is over. In both
/// cases the move is not played, and the program ends when control returns to the event loop.
void MainWindow::closeEvent(QCloseEvent* event) {
    Closing = true;
    event->accept();
    QCoreApplication::quit();
}

bool MainWindow::eventFilter(QObject* /*watched*/, QEvent* event) {
    return IsThinking && IsUserInput(event->type());
}

}  // namespace brastel
