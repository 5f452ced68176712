#include "engine/Evaluation.h"
#include "testing/Positions.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace brastel {
namespace {

/// The verdict on a move of Red and, after half a turn of the board, of Blue.
void ExpectVerdict(const std::string& pieces, int from, int to, bool isCovered) {
    const int verdict = isCovered ? 9000 : 0;
    Place(pieces);
    Pos.SideToMove = Red;
    EXPECT_EQ(GoalFrontCheck({from, to}), -verdict) << pieces;
    Place(Turned(pieces));
    Pos.SideToMove = Blue;
    EXPECT_EQ(GoalFrontCheck({Turned(from), Turned(to)}), verdict) << pieces;
}

/// Below boards that stand side by side comes a line with a move and a verdict for each of them.
TEST(EvaluationTest, GoalFronts) {
    std::ifstream file(BRASTEL_TEST_DATA "/fronts.txt");
    std::string drawing;
    int seen = 0;
    for (std::string line; std::getline(file, line); drawing += line + '\n') {
        std::istringstream words(line);
        std::string word, verdict;
        words >> word;
        if (word != "move") continue;
        for (int board = 0; words >> word >> verdict; ++board, ++seen) {
            const auto [from, to] = std::pair(std::stoi(word), std::stoi(word.substr(3)));
            ExpectVerdict(ListOf(drawing, board), from, to, verdict == "yes");
        }
        drawing.clear();
    }
    EXPECT_EQ(seen, 20);
}

}  // namespace
}  // namespace brastel
