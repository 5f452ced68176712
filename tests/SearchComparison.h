#pragma once

#include "core/Opening.h"
#include "core/WinTest.h"
#include "engine/Random.h"
#include "engine/Search.h"
#include "tests/PlainSearch.h"
#include "tests/RandomPlay.h"

#include <iomanip>
#include <sstream>

/// Positions for comparing the search with the plain one, and the comparison.
namespace brastel {

/// Up to twelve pieces of each side, few more often than many, anywhere on the board, some outside
/// or nowhere; a ring may lie on any square. All this a game file may hold, and more than play
/// shows.
inline void SetUpAnything(Dice& dice) {
    SelectStartLayout(FreeSetupLayout);
    SetUpStartPosition();
    for (const Int16 side : {Red, Blue}) {
        const int pieces = 1 + Below(dice, 1 + Below(dice, MaxPieces));
        while (PieceCount(side) < pieces) {
            const int square = 1 + Below(dice, LastSquare);
            if (!InField(square) && Below(dice, 8) > 0) continue;
            SetupAddPiece(SquareLeft(square), SquareTop(square));
        }
        Int16& carrier = SquaresOf(side)[1 + Below(dice, pieces)];
        LayRing(Below(dice, 8) > 0 ? carrier : 1 + Below(dice, LastSquare));
        ++Pos.MoveCount;
        if (Below(dice, 32) == 0) Pos.Board[std::exchange(carrier, NoSquare)] = Empty;
    }
    if (Below(dice, 16) == 0) Pos.MoveCount = ToInt16(1 + Below(dice, 2));
    Pos.SideToMove = Below(dice, 2) == 0 ? Red : Blue;
    if (Below(dice, 2) > 0) return;
    Pos.LastHit = {ToInt16(Below(dice, 1 + MaxPieces)), ToInt16(Below(dice, 1 + MaxPieces))};
    const int mostOutside = Below(dice, 4) > 0 ? 7 : 280;
    Pos.OutsideBalance = ToInt16(Below(dice, 2 * mostOutside + 1) - mostOutside);
    if (Below(dice, 8) == 0) Pos.RingSquare[1] = Pos.RingSquare[0];
}

/// A lone piece in a corner of the field, hunted by others: where it is sure to be pushed out, all
/// its moves are worth less than NoScore, which hardly ever happens otherwise.
inline void SetUpHunt(Dice& dice) {
    std::string pieces = Below(dice, 2) == 0 ? "r10" : "R10";
    for (int square = 11 + Below(dice, 4); square < 40; square += 3 + Below(dice, 4)) {
        if (InField(square)) pieces += " b" + std::to_string(square);
    }
    Place(pieces);
    if (Below(dice, 2) == 0) Pos = UpsideDown(Pos);
    if (Below(dice, 2) == 0) Pos = LeftRight(Pos);
}

/// Draws one position after another: a quarter of them set up, a quarter from random games, the
/// others along games that the computer plays with itself, where goal fronts are reached.
class PositionSource {
public:
    static constexpr int AnyLayout = -1;

    /// With a layout, 0 to 5, only positions from its games.
    explicit PositionSource(unsigned seed, int layout = AnyLayout) : Random(seed), Only(layout) {
        SeedRandom(seed);
        Begin();
        Game = Pos;
    }

    /// Leaves the next position in Pos.
    void Draw() {
        const int kind = Below(Random, 4);
        if (kind == 0 && Only == AnyLayout) {
            return Below(Random, 4) == 0 ? SetUpHunt(Random) : SetUpAnything(Random);
        }
        if (kind == 1) {
            const int layout = Layout();
            return Wander(layout, Below(Random, 64), Random);
        }
        Pos = Game;
        for (int entries = 1 + Below(Random, 3); entries > 0; --entries) PlayEntry();
        Game = Pos;
    }

private:
    int Layout() { return Only == AnyLayout ? Below(Random, FreeSetupLayout) : Only; }

    void Begin() {
        SelectStartLayout(Layout());
        SetUpStartPosition();
    }

    /// What the computer chooses at a low level or, now and then, anything.
    Action ChooseAction() {
        const MoveCode code = MoveList[1][ChooseCandidate(ToInt16(1 + Below(Random, 3)))];
        if (BothRingsPlaced() && Below(Random, 5) == 0) return DrawAction(Random);
        return {OriginOf(code), DestinationOf(code)};
    }

    void PlayEntry() {
        const auto [from, to] = ChooseAction();
        const bool isWon = to == GoalSquare(Pos.SideToMove) || FindWinner() != Empty;
        if (isWon || Pos.MoveCount > 120) return Begin();
        ApplyMoveQuiet(from, to);
        ++Pos.MoveCount;
    }

    Dice Random;
    int Only;
    Position Game;
};

/// Everything about the position that a search can see, for the report of a difference.
inline std::string Described() {
    std::ostringstream text;
    for (const int side : {Red, Blue}) {
        text << (side == Red ? "Red" : " Blue");
        for (int i = 1; i <= PieceCount(side); ++i) text << ' ' << SquaresOf(side)[i];
    }
    text << " rings " << Pos.RingSquare[0] << ' ' << Pos.RingSquare[1] << " last hit "
         << Pos.LastHit[0] << ' ' << Pos.LastHit[1] << " outside " << Pos.OutsideBalance << " side "
         << Pos.SideToMove << " entry " << Pos.MoveCount;
    return text.str();
}

inline std::string Described(const PlainResult& result) {
    std::ostringstream text;
    text << std::setprecision(17) << result.Best << " by";
    for (const MoveCode code : result.Tied) text << ' ' << code;
    text << " of";
    for (const auto& candidate : result.Candidates) text << ' ' << candidate.Code;
    return text.str();
}

/// What a search has left in row 1.
inline PlainResult RealResult() {
    std::vector<PlainResult::Candidate> row;
    for (int n = 1; n <= CandidateCount[1]; ++n) row.push_back({MoveList[1][n], MoveScores[1][n]});
    return ResultOf(row);
}

/// How the search just made, which chose `chosen`, differs from the plain one of the position
/// `before`, a line for each fault; empty when it does not. The real search may leave any value
/// below the best in a candidate that loses.
inline std::string Differences(const Position& before, const PlainResult& plain, int chosen) {
    const PlainResult real = RealResult();
    const bool sameRow =
        std::ranges::equal(real.Candidates, plain.Candidates, {}, &PlainResult::Candidate::Code,
                           &PlainResult::Candidate::Code);
    const bool isBest = std::ranges::count(real.Tied, MoveList[1][chosen]) > 0;
    std::string text;
    if (Pos != before) text += "the position has changed\n";
    if (isBest == real.Tied.empty()) text += "the choice is not the best\n";
    if (!sameRow || real.Best != plain.Best || real.Tied != plain.Tied) {
        text += Described(real) + "\ninstead of " + Described(plain) + '\n';
    }
    return text;
}

}  // namespace brastel
