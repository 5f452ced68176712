#include "tests/SearchComparison.h"

#include <charconv>
#include <chrono>
#include <iostream>
#include <string_view>

/// Compares the search with the plain one on as many positions as one likes, and their times.
namespace brastel {
namespace {

constexpr std::string_view Usage =
    "Usage: compare_searches LEVEL POSITIONS [SEED] [LAYOUT]\n"
    "LEVEL 1 to 11; with LAYOUT, 0 to 5, only positions from its games.\n";

struct Arguments {
    int Level = 0;
    int Positions = 0;
    int Seed = 1;
    int Layout = PositionSource::AnyLayout;
};

bool ReadNumber(std::string_view text, int& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

bool Read(int count, char** texts, Arguments& arguments) {
    const std::array numbers{&arguments.Level, &arguments.Positions, &arguments.Seed,
                             &arguments.Layout};
    if (count < 2 || count > std::ssize(numbers)) return false;
    for (int i = 0; i < count; ++i) {
        if (!ReadNumber(texts[i], *numbers[static_cast<std::size_t>(i)])) return false;
    }
    return arguments.Level >= 1 && arguments.Level <= MaxPly &&
           arguments.Layout < FreeSetupLayout && arguments.Layout >= PositionSource::AnyLayout;
}

/// Adds the seconds that an operation takes.
template <typename Operation>
auto Timed(double& seconds, Operation operation) {
    const auto start = std::chrono::steady_clock::now();
    const auto result = operation();
    seconds += std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return result;
}

struct Totals {
    int Differing = 0;
    double PlainSeconds = 0;
    double RealSeconds = 0;
};

void CompareOne(int level, Totals& totals) {
    const Position before = Pos;
    const std::string description = Described();
    const PlainResult plain = Timed(totals.PlainSeconds, [=] { return PlainSearch(level); });
    const int chosen = Timed(totals.RealSeconds, [=] { return ChooseCandidate(ToInt16(level)); });
    const std::string differences = Differences(before, plain, chosen);
    if (differences.empty()) return;
    ++totals.Differing;
    std::cout << description << '\n' << differences << std::flush;
}

Totals Compare(const Arguments& arguments) {
    Totals totals;
    PositionSource source(static_cast<unsigned>(arguments.Seed), arguments.Layout);
    for (int n = 0; n < arguments.Positions; ++n) {
        source.Draw();
        CompareOne(arguments.Level, totals);
    }
    return totals;
}

}  // namespace
}  // namespace brastel

int main(int count, char** texts) {
    using namespace brastel;
    Arguments arguments;
    if (!Read(count - 1, texts + 1, arguments)) {
        std::cerr << Usage;
        return 2;
    }
    const Totals totals = Compare(arguments);
    std::cout << arguments.Positions << " positions, " << totals.Differing << " differences, plain "
              << totals.PlainSeconds << " s, engine " << totals.RealSeconds << " s, quotient "
              << totals.PlainSeconds / totals.RealSeconds << '\n';
    return totals.Differing > 0 ? 1 : 0;
}
