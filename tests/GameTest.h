#pragma once

#include "engine/Random.h"
#include "engine/Search.h"
#include "engine/TreeSearch.h"
#include "play/Hint.h"
#include "testing/RandomPlay.h"
#include "testing/ShownGame.h"

#include <gtest/gtest.h>

#include <map>
#include <sstream>

namespace brastel {

/// A game that writes down what the view is told, in order.
class NotedGame : public ShownGame {
public:
    using Base = ShownGame;
    std::string Notes;

    void PlacePieces() override { Base::PlacePieces(), Add("pieces"); }
    void ShowMessage(std::string_view text) override {
        Base::ShowMessage(text), Add(text == BlankText ? "blank" : Message);
    }
    void ShowTurn(Int16 side) override { Base::ShowTurn(side), Add(side == Red ? "Red" : "Blue"); }
    void Beep() override { Add("beep"); }
    void AnnounceRefusal(std::string_view why) override { Add(std::string(why)); }
    void ShowForward(bool on) override { Base::ShowForward(on), Add(on ? "+Forward" : "-Forward"); }
    void ShowBackward(bool on) override { Base::ShowBackward(on), Add(on ? "+Back" : "-Back"); }
    /// Between the calls: another seed than 1, or the depth of a search.
    void ShowBusy(bool busy) override {
        Base::ShowBusy(busy);
        if (!busy && SearchedPositions > 0) Add("depth " + std::to_string(SearchedDepth()));
        if (!busy && !IsThinking && RandomBelow(30000) != FirstNumber) Add("seed");
        SearchedPositions = 0;
        if (busy && !IsThinking) SeedRandom(1);
        Add(busy ? "busy" : "ready");
    }
    void ShowBoardTexts() override { Add(Drawn.Board == Pos.Board ? "texts" : "old texts"); }
    void ShowCandidateCount(Int16 count) override {
        GenerateMoves(2);
        Add(count == CandidateCount[2] ? "count" : "wrong count");
    }
    void HandleEvents() override {
        Base::HandleEvents();
        Add(IsThinking ? "events" : "unguarded events");
    }

private:
    void Add(const std::string& what) { Notes += what + ' '; }

    /// The least depth whose search of the position leaves what the last one has left, or 0.
    static int SearchedDepth() {
        const auto positions = SearchedPositions;
        const auto scores = MoveScores[1];
        for (Int16 depth = 1; depth <= MaxPly; ++depth) {
            ChooseCandidate(depth);
            if (SearchedPositions == positions && MoveScores[1] == scores) return depth;
        }
        return 0;
    }

    /// The first random number after seed 1.
    const Int16 FirstNumber = (SeedRandom(1), RandomBelow(30000));
};

/// A game in a window: two people play the standard layout unless a test says otherwise.
class GameTest : public testing::Test {
protected:
    GameTest() {
        SetView(&Window);
        Begin("");
    }
    ~GameTest() override { SetView(nullptr); }

    static void Start(int layout) {
        SelectStartLayout(layout);
        NewGameCommand();
    }
    void Begin(const std::string& position) {
        Start(3);
        LoadedCount = 0;
        KeepLoadedStart();
        SetLevel(TwoPlayerLevel);
        if (!position.empty()) Place(position);
        Window.PlacePieces();
    }

    static void DoubleClick(Int16 side, int index) { DoubleClickPiece({side, ToInt16(index)}); }

    /// 68-60 drags, +68 clicks, R3 double-clicks Red piece 3; entry200 sets that number of the next
    /// entry.
    static void Do(const std::string& command) {
        static const std::map<std::string, void (*)(int)> words{
            {"+", [](int n) { ClickBoard(SquareLeft(n) + 20, SquareTop(n) + 20); }},
            {"B", [](int n) { DoubleClick(Blue, n); }},
            {"R", [](int n) { DoubleClick(Red, n); }},
            {"back", [](int) { StepBack(); }},
            {"entry", [](int n) { Pos.MoveCount = ToInt16(n); }},
            {"forward", [](int) { StepForward(); }},
            {"hint", [](int) { Hint(); }},
            {"layout", Start},
            {"level", [](int n) { SetLevel(ToInt16(n)); }},
            {"load", [](int) { LoadPlayedGame(), BeginLoadedGame(); }},
            {"new", [](int) { NewGameCommand(); }},
            {"offer", [](int) { ShowForward(true); }},
            {"seed", [](int n) { SeedRandom(static_cast<unsigned>(n)); }}};
        const auto digit = std::min(command.find_first_of("0123456789"), command.size());
        const int number = std::atoi(command.c_str() + digit);
        if (digit > 0) return words.at(command.substr(0, digit))(number);
        Drag(number, std::stoi(command.substr(command.find('-') + 1)));
    }
    /// Before the commands, brackets may begin another game: with the position in them, or with the
    /// standard layout if they are empty.
    void DoAll(std::string commands) {
        if (commands.starts_with('[')) {
            const auto end = commands.find(']');
            Begin(commands.substr(1, end - 1));
            commands.erase(0, end + 1);
        }
        std::istringstream words(commands);
        for (std::string command; words >> command;) Do(command);
    }

    /// Entries played, who is to move, the buttons shown, whether the game is over, and the
    /// message.
    std::string State() const {
        return std::to_string(Pos.MoveCount - 1) + (Pos.SideToMove == Red ? " Red" : " Blue") +
               (BackwardVisible ? " Back" : "") + (ForwardVisible ? " Forward" : "") +
               (GameOver != False ? " over" : "") +
               (Window.Message == BlankText ? "" : ' ' + Window.Message);
    }

    NotedGame Window;
};

}  // namespace brastel
