#pragma once

#include "play/GameRecord.h"
#include "play/GameState.h"
#include "play/GameView.h"
#include "play/Hint.h"
#include "play/HumanAction.h"
#include "tests/RandomPlay.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <sstream>

namespace brastel {

/// Remembers what a window would show.
class RecordingView : public GameView {
public:
    std::string Message;
    /// The position as last drawn.
    Position Drawn;
    int Drawings = 0;
    int Beeps = 0;
    int Searches = 0;
    bool Closing = false;
    /// What the user does while the computer thinks.
    std::function<void()> OnEvents = [] {};
    double Clock = 0;

    void PlacePieces() override {
        Drawn = Pos;
        ++Drawings;
    }
    void ShowMessage(std::string_view text) override {
        Message = text;
        Searches += text == ThinkingText;
    }
    void Beep() override { ++Beeps; }
    /// Time passes by events alone, so that no test waits.
    void HandleEvents() override {
        Clock += 0.02;
        OnEvents();
    }
    double Now() const override { return Clock; }
    bool IsClosing() const override { return Closing; }
};

/// A name, a position as Place takes it (empty for the standard game) and steps "commands => state"
/// with semicolons between, as Do and State have them.
using Scenario = std::array<const char*, 3>;

/// A game in a window: two people play the standard layout unless a test says otherwise.
class GameTest : public testing::Test {
protected:
    GameTest() {
        SetView(&Window);
        LoadedCount = 0;
        TakeLoadedGame();
        Start(3);
        SetLevel(TwoPlayerLevel);
    }
    ~GameTest() override { SetView(nullptr); }

    static void Start(int layout) {
        SelectStartLayout(layout);
        NewGameCommand();
    }
    /// Drags the piece on a square to another square, not to its middle.
    static void Drop(int from, int to) {
        if (const Piece target = PieceOn(to)) return DropOnPiece(PieceOn(from), target);
        DropOnBoard(PieceOn(from), SquareLeft(to) + 7, SquareTop(to) + 33);
    }
    static void DoubleClick(Int16 side, int index) { DoubleClickPiece({side, ToInt16(index)}); }
    static void Click(int square) { ClickBoard(SquareLeft(square) + 20, SquareTop(square) + 20); }

    /// As when the game just played had been saved and loaded.
    static void LoadPlayedGame() {
        LoadedFrom = PlayedFrom;
        LoadedTo = PlayedTo;
        LoadedCount = ToInt16(Pos.MoveCount - 1);
        TakeLoadedGame();
        NewGameCommand();
        ShowForward(true);
    }

    /// 68-60 drags, +68 clicks, R3 double-clicks Red piece 3; entry200 leaps to that entry.
    static void Do(const std::string& command) {
        static const std::map<std::string, std::function<void()>> words{
            {"back", StepBack},      {"forward", StepForward},
            {"hint", Hint},          {"load", LoadPlayedGame},
            {"new", NewGameCommand}, {"offer", [] { ShowForward(true); }}};
        static const std::map<std::string, std::function<void(int)>> numbers{
            {"+", Click},
            {"layout", Start},
            {"level", [](int n) { SetLevel(ToInt16(n)); }},
            {"entry", [](int n) { Pos.MoveCount = ToInt16(n); }},
            {"R", [](int n) { DoubleClick(Red, n); }},
            {"B", [](int n) { DoubleClick(Blue, n); }}};
        const auto digit = command.find_first_of("0123456789");
        const auto dash = command.find('-');
        if (digit == std::string::npos) return words.at(command)();
        const int number = std::stoi(command.substr(digit));
        if (digit > 0) return numbers.at(command.substr(0, digit))(number);
        Drop(number, std::stoi(command.substr(dash + 1)));
    }

    /// Entries played, who is to move, the buttons shown and the message.
    std::string State() const {
        return std::to_string(Pos.MoveCount - 1) + (Pos.SideToMove == Red ? " Red" : " Blue") +
               (BackwardVisible ? " Back" : "") + (ForwardVisible ? " Forward" : "") +
               (Window.Message == BlankText ? "" : ' ' + Window.Message);
    }

    void Run(const std::vector<Scenario>& scenarios) {
        for (const auto& [name, position, script] : scenarios) {
            SCOPED_TRACE(name);
            Start(3);
            SetLevel(TwoPlayerLevel);
            if (*position != 0) Place(position);
            Window.PlacePieces();
            std::istringstream steps(script);
            for (std::string step; std::getline(steps >> std::ws, step, ';');) Follow(step);
        }
    }

    void Follow(const std::string& step) {
        const auto arrow = step.find(" => ");
        std::istringstream commands(step.substr(0, arrow));
        for (std::string command; commands >> command;) Do(command);
        EXPECT_EQ(State(), step.substr(arrow + 4)) << "after " << step << "\n" << Listed();
        EXPECT_TRUE(Window.Drawn.Board == Pos.Board && Window.Drawn.RingSquare == Pos.RingSquare);
    }

    RecordingView Window;
};

}  // namespace brastel
