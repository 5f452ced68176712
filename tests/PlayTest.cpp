#include "tests/GameTest.h"
#include "tests/Rows.h"

namespace brastel {
namespace {

TEST_F(GameTest, EveryCommandDoesItsOwn) {
    for (const auto& [commands, state] : RowsOf("/play.txt")) {
        DoAll(commands);
        EXPECT_EQ(State(), state) << "after " << commands << "\n" << Listed();
        EXPECT_EQ(Window.FirstWrong(), "");
    }
}

TEST_F(GameTest, WhatTheViewIsTold) {
    for (const auto& [commands, told] : RowsOf("/view.txt")) {
        SCOPED_TRACE(commands);
        const auto bar = commands.find('|');
        DoAll(commands.substr(0, bar));
        Window.Notes.clear();
        DoAll(commands.substr(bar + 1));
        EXPECT_EQ(Window.Notes, told + ' ');
        EXPECT_EQ(Window.FirstWrong(), "");
    }
}

TEST_F(GameTest, AnOpponentInTheGoalIsNoReasonToPass) {
    DoAll("[B102 b101 r109] hint");
    EXPECT_EQ(State(), "3 Red Back");
    EXPECT_NE(PlayedFrom[3], NoSquare);
}

TEST_F(GameTest, AClosedWindowPlaysNothing) {
    DoAll("R3 B3 level1");
    Window.OnEvents = [this] { Window.Closing = true; };
    DoAll("71-63 hint");
    EXPECT_EQ(State(), "3 Blue Back Thinking ...");
    EXPECT_EQ(Window.Notes.find("depth"), Window.Notes.npos) << Window.Notes;
}

}  // namespace
}  // namespace brastel
