#pragma once

#include "play/Hint.h"
#include "tests/RandomPlay.h"
#include "tests/ShownGame.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace brastel {

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
    static void DoubleClick(Int16 side, int index) { DoubleClickPiece({side, ToInt16(index)}); }
    static void Click(int square) { ClickBoard(SquareLeft(square) + 20, SquareTop(square) + 20); }

    /// 68-60 drags, +68 clicks, R3 double-clicks Red piece 3; entry200 leaps to that entry.
    static void Do(const std::string& command) {
        static const std::map<std::string, std::function<void()>> words{
            {"back", StepBack},      {"forward", StepForward},
            {"hint", Hint},          {"load", [] { LoadPlayedGame(), BeginLoadedGame(); }},
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
        Drag(number, std::stoi(command.substr(dash + 1)));
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
        EXPECT_EQ(Window.FirstWrong(), "");
    }

    ShownGame Window;
};

}  // namespace brastel
