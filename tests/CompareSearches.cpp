#include "tests/SearchComparison.h"
#include "tools/ReadNumber.h"

#include <chrono>
#include <climits>
#include <iostream>
#include <string_view>

/// Compares the search with the plain one on as many positions as one likes, and their times.
namespace brastel {
namespace {

constexpr std::string_view Usage =
    "Usage: compare_searches LEVEL POSITIONS [SEED] [LAYOUT]\n"
    "LEVEL 1 to 11; with LAYOUT, 0 to 5, only positions from its games.\n";

struct Arguments {
    int Level;
    int Positions;
    int Seed;
    int Layout;
};

std::optional<Arguments> Read(int count, char** texts) {
    const auto number = [=](int n, const char* otherwise, int least, int most) {
        return ReadNumber<int>(n < count ? texts[n] : otherwise, least, most);
    };
    const auto level = number(1, "", 1, MaxPly);
    const auto positions = number(2, "", 0, INT_MAX);
    const auto seed = number(3, "1", 0, INT_MAX);
    const auto layout = number(4, "-1", PositionSource::AnyLayout, FreeSetupLayout - 1);
    if (count > 5 || !level || !positions || !seed || !layout) return {};
    return Arguments{*level, *positions, *seed, *layout};
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
    const auto arguments = Read(count, texts);
    if (!arguments) {
        std::cerr << Usage;
        return 2;
    }
    const Totals totals = Compare(*arguments);
    std::cout << arguments->Positions << " positions, " << totals.Differing
              << " differences, plain " << totals.PlainSeconds << " s, engine "
              << totals.RealSeconds << " s, quotient " << totals.PlainSeconds / totals.RealSeconds
              << '\n';
    return totals.Differing > 0 ? 1 : 0;
}
