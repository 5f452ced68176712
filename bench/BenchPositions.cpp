#include "bench/BenchPositions.h"

#include "core/Consistency.h"
#include "core/Position.h"
#include "core/WinTest.h"

#include <sstream>

namespace brastel {

namespace {

/// Two lines each: pieces a side, phase of the game, side to move, MoveCount, the squares of both
/// rings, LastHit and OutsideBalance; then the squares of Red's and of Blue's pieces in index
/// order.
constexpr const char* PositionTable = R"(
 2 opening Blue   4   69  45   0  0   0
    53 69 | 44 45
 2 opening Blue   6   68  52   2  2   0
    68 52 | 44 50
 2 opening Red    7   69  52   1  1   0
    68 69 | 52 50
 2 middle  Blue  42   53  86   0  0   0
    53 95 | 86 44
 2 middle  Red   51   66  69   2  2   0
    69 59 | 66 75
 2 end     Blue  46   37  92   0  0   0
    58 37 | 29 92
 2 end     Blue  56   87  13   0  0  -1
    87 13 | 12 96
 2 end     Red   59  101  18   0  0   0
    100 18 | 101 83
 4 opening Blue   4   70  44   0  0   0
    67 68 52 70 | 43 44 45 46
 4 opening Red    5   58  53   0  0   0
    58 68 69 70 | 43 44 45 53
 4 opening Red    7   50  45   0  0   0
    67 50 69 70 | 43 44 45 58
 4 middle  Blue  42   52  62   1  3   0
    52 59 56 50 | 57 62 36 54
 4 middle  Red   57   53  90   0  0  -1
    43 90 53 56 | 41 89 55 82
 4 end     Red   27   95  53   0  0   0
    53 84 93 61 | 60 62 44 95
 4 end     Red   27   23  59   0  0   0
    61 68 69 23 | 59 22 60 10
 4 end     Blue  54   92  93   1  2   0
    92 76 36 37 | 31 84 93 44
 6 opening Red    3   68  45   0  0   0
    67 68 69 70 28 29 | 43 44 45 46 84 85
 6 opening Blue   6   53  55   0  0   0
    67 68 69 53 28 29 | 43 44 45 55 84 85
 6 opening Red    7   52  53   0  0   0
    67 68 69 52 28 29 | 43 53 44 46 84 85
 6 middle  Blue  26   62  66   0  0   2
    65 68 64 75 28 45 | 66 44 62 54 84 77
 6 middle  Red   33   68  50   0  0  -2
    61 50 75 76 28 29 | 49 68 45 36 57 58
 6 end     Blue  26   45  83   0  0  -1
    66 68 45 55 28 50 | 83 52 60 64 100 85
 6 end     Red   71   77  10   0  0   3
    80 73 64 10 93 20 | 62 75 11 12 77 87
 6 end     Red  115   26  28   0  0   0
    26 25 45 101 9 35 | 42 28 10 14 108 109
 8 opening Blue   4   67  42   0  0   0
    50 67 68 69 70 71 28 29 | 42 43 44 45 46 47 84 85
 8 opening Blue   6   71  47   4  8   0
    66 67 68 85 70 71 28 29 | 42 43 44 45 54 47 84 101
 8 opening Blue   8   53  59   0  0   0
    66 53 52 69 70 71 28 29 | 42 43 59 45 46 47 84 85
 8 middle  Red   15   63  28   0  0   0
    75 45 68 61 70 63 12 28 | 42 20 36 37 46 38 84 69
 8 middle  Blue  50  102  43   6  5   1
    43 45 97 52 63 102 4 5 | 41 53 36 13 104 69 100 98
 8 end     Red   71   75  77   0  0   2
    57 65 100 49 77 109 42 14 | 41 58 92 84 62 93 108 75
 8 end     Blue  98   22  61   0  0   0
    63 22 13 100 16 72 14 36 | 37 98 15 19 64 61 71 109
 8 end     Red  107   23  50   0  0   0
    53 34 31 104 23 15 12 54 | 29 14 7 50 63 58 103 101
10 opening Red    3   74  42   0  0   0
    66 67 68 69 70 71 74 79 28 29 | 42 43 44 45 46 47 34 39 84 85
10 opening Red    5   58  52   0  0   0
    58 67 68 69 70 71 74 79 28 29 | 42 43 52 45 46 47 34 39 84 85
10 opening Blue   8   79  53   9  5  -1
    66 67 84 69 70 71 74 79 46 29 | 42 43 60 53 48 62 34 39 100 85
10 middle  Blue  32   37  78   7 10   1
    66 67 68 37 71 56 86 80 44 29 | 42 36 59 79 78 47 34 39 100 88
10 middle  Blue  60   62 101   3  1  -2
    75 71 101 52 93 99 70 74 4 29 | 103 72 76 44 62 61 12 39 108 109
10 end     Red   35   59  20   0  0   1
    66 57 20 69 68 71 75 79 4 21 | 50 19 12 55 23 59 52 5 84 85
10 end     Red   75   12  45   7  6  -1
    66 34 62 61 63 10 57 55 45 5 | 33 36 53 19 68 56 12 48 50 52
10 end     Blue  92   38  21   0  0  -6
    90 21 38 42 47 45 76 71 13 31 | 41 40 12 59 32 106 5 29 84 72
12 opening Red    3   69  46   0  0   0
    66 67 68 69 70 71 74 79 28 29 27 30 | 42 43 44 45 46 47 34 39 84 85 83 86
12 opening Blue   6   58  46  10  4   0
    58 67 68 69 70 71 74 79 28 45 27 30 | 42 43 44 61 46 47 34 39 84 85 83 86
12 opening Blue   8   61  60   0  0  -1
    66 99 61 69 70 71 74 79 28 29 27 30 | 42 43 44 45 60 47 34 39 84 85 107 86
12 middle  Red   25   53  45  11  2   2
    65 64 43 54 45 53 74 79 28 5 42 30 | 41 58 44 13 46 47 34 39 66 85 62 86
12 middle  Red   25   60  78  10  7   1
    66 68 53 60 62 71 61 70 4 29 27 48 | 42 52 12 51 46 80 34 39 84 77 83 78
12 end     Blue  56   20  52   0  0   5
    52 10 20 41 68 72 74 79 4 5 19 32 | 26 36 11 54 13 44 42 39 84 85 83 71
12 end     Red   63   51  74   0  0   1
    49 81 58 77 104 65 97 103 20 29 13 39 | 51 66 36 57 75 48 4 23 74 99 111 85
12 end     Blue  78   10  36   3 12   1
    90 45 12 76 48 72 10 103 42 6 57 32 | 41 58 36 21 15 70 35 39 100 111 106 4
)";

struct BenchPosition {
    std::string Phase;
    Position Start;
};

void ReadSide(std::istream& table, Position& start, Int16 side) {
    PieceSquares& squares = side == Red ? start.RedSquare : start.BlueSquare;
    for (int i = 1; i <= start.RedCount; ++i) {
        table >> squares[i];
        start.Board[squares[i]] = side;
    }
}

BenchPosition ReadPosition(std::istream& table) {
    BenchPosition position;
    Position& start = position.Start;
    std::string side;
    char divider = 0;
    table >> start.RedCount >> position.Phase >> side >> start.MoveCount;
    for (Int16& ring : start.RingSquare) table >> ring;
    for (Int16& piece : start.LastHit) table >> piece;
    table >> start.OutsideBalance;
    start.BlueCount = start.RedCount;
    start.SideToMove = side == "Red" ? Red : Blue;
    ReadSide(table, start, Red);
    table >> divider;
    ReadSide(table, start, Blue);
    return position;
}

std::vector<BenchPosition> ReadTable() {
    std::istringstream table(PositionTable);
    std::vector<BenchPosition> positions;
    while (positions.size() < BenchPositionCount) positions.push_back(ReadPosition(table));
    assert(table);
    return positions;
}

const BenchPosition& PositionAt(int n) {
    static const std::vector<BenchPosition> Positions = ReadTable();
    return Positions.at(static_cast<std::size_t>(n - 1));
}

}  // namespace

void SetUpBenchPosition(int n) {
    Pos = PositionAt(n).Start;
    assert(PositionIsConsistent());
    assert(FindWinner() == Empty);
}

std::string BenchPositionLabel(int n) {
    const BenchPosition& position = PositionAt(n);
    return std::to_string(n) + ": " + std::to_string(position.Start.RedCount) + " pieces, " +
           position.Phase;
}

std::vector<int> BenchPositionsWith(int pieces) {
    std::vector<int> numbers;
    for (int n = 1; n <= BenchPositionCount; ++n) {
        if (PositionAt(n).Start.RedCount == pieces) numbers.push_back(n);
    }
    return numbers;
}

}  // namespace brastel
