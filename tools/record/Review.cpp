#include "tools/record/Review.h"

#include "engine/Random.h"
#include "engine/Search.h"
#include "tools/Interrupt.h"

#include <algorithm>

namespace brastel {

namespace {

int Counted(int value) { return std::clamp(value, -100 * UnitsPerPoint, 100 * UnitsPerPoint); }

/// The entry that was played in the position.
ReviewedEntry ReviewEntry(const Action& played, Int16 depth) {
    ReviewedEntry entry{.Side = Pos.SideToMove, .Played = played, .Best = played};
    if (!BothRingsPlaced() || played == NullMove) return entry;
    const Action best = PlayableAction(ChooseCandidate(depth));
    const int value = ValueOfAction(played, depth);
    // Without a candidate the computer passes, but people may have a move.
    const int bestValue = best == NullMove || best == played ? value : ValueOfAction(best, depth);
    if (bestValue > value) entry.Best = best;
    entry.HasValue = true;
    entry.Value = -entry.Side * value;
    entry.BestValue = -entry.Side * std::max(value, bestValue);
    entry.Loss = Counted(std::max(value, bestValue)) - Counted(value);
    return entry;
}

void MarkWorst(GameReview& review, int side) {
    for (int marked = 0; marked < 3; ++marked) {
        const auto loss = [side](const ReviewedEntry& entry) {
            return entry.Side == side && !entry.IsWorst ? entry.Loss : 0;
        };
        const auto worst = std::ranges::max_element(review.Entries, {}, loss);
        // A smaller loss would be printed as 0.0.
        if (worst != review.Entries.end() && loss(*worst) * 20 > UnitsPerPoint)
            worst->IsWorst = true;
    }
}

}  // namespace

GameReview ReviewGame(const RecordedGame& game, Int16 depth) {
    GameReview review{depth, {}};
    const int last = game.Winner != Empty ? game.WinningEntry : game.PlayedEntries();
    const int end = game.BrokenEntry == 0 ? last : std::min(last, game.BrokenEntry - 1);
    // The search draws between equal moves. So the same review shows the same ones.
    SeedRandom(1);
    for (int k = 1; k <= end && Interrupted == 0; ++k) {
        Pos = game.Positions[static_cast<std::size_t>(k - 1)];
        review.Entries.push_back(ReviewEntry(game.Entries[static_cast<std::size_t>(k - 1)], depth));
    }
    for (const int side : {Red, Blue}) MarkWorst(review, side);
    return review;
}

}  // namespace brastel
