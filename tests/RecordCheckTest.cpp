#include "play/TurnFlow.h"
#include "tests/FilesTest.h"
#include "tests/GameTest.h"
#include "tools/record/Lawfulness.h"
#include "tools/record/Report.h"
#include "tools/record/SvgBoard.h"
#include "tools/record/TextBoard.h"

namespace brastel {
namespace {

/// By hand in an editor: where the fault of each kind of damage is.
TEST(RecordCheckTest, DamageIsToldWithLineAndCause) {
    const std::map<std::string, std::string> cases{
        {"damaged/03-empty", ":1: error 3: the file ends before its last value"},
        {"damaged/03-half-an-entry-missing", ":23: error 3: the file ends before its last value"},
        {"damaged/03-red-table-unfinished", ":7: error 3: the file ends before its last value"},
        {"damaged/04-letter-o-for-zero", ":21: error 4: this is no number"},
        {"damaged/04-sign-apart", ":22: error 4: this is no number"},
        {"damaged/05-blue-count-negative", ":1: error 5: a negative count"},
        {"damaged/05-entry-below-16-bits", ":23: error 5: a number beyond -32768 to 32767"},
        {"damaged/05-square-113", ":10: error 5: a start square off the board"},
        {"damaged/05-square-of-red-and-blue", ":19: error 5: a start square used twice"},
        {"damaged/06-thirteen-blue", ":1: error 6: more than 12 pieces of a side"},
        {"damaged/06-two-hundred-and-one-entries", ":20: error 6: more than 200 entries"},
        {"missing", ": No such file or directory"},
        {"missing/missing", ": No such file or directory"},
        {std::string(300, 'x'), ": File name too long"},
        {"good", ": not an ordinary file"},
        {"good/02-entry-of-the-other-side",
         ":23: entry 3 (44 52) breaks the rules: the piece belongs to the other side"},
        {"good/00-free-setup-before-the-pieces", ": 0 entries, Red to move"},
    };
    for (const auto& [name, words] : cases) {
        const std::string file = name == "good" ? name : name + ".txt";
        const std::string path = BRASTEL_TEST_DATA "/" + file;
        EXPECT_EQ(Verdict(ReadRecordedGame(path)), path + words);
    }
}

/// Each kind of line end counts once, and so do empty lines.
TEST(RecordCheckTest, LinesAreCountedAsEditorsDo) {
    FileDesk desk;
    const std::map<std::string, std::string> cases{
        {"\n\n\nx", ":4:"},
        {"\r\rx", ":3:"},
        {"\r\n\r\nx", ":3:"},
        {"\n\r\nx", ":3:"},
        {"1 1\r\n\n\r 4 x", ":4:"},
        {"1,\r1\n4\nx", ":4:"},
        // The line feed comes with the next piece of the file that is read.
        {std::string(4095, ' ') + "\r\nx", ":2:"}};
    for (const auto& [bytes, line] : cases) {
        WriteBytes("f", bytes);
        EXPECT_EQ(Verdict(ReadRecordedGame("f")), 'f' + line + " error 4: this is no number");
    }
}

struct RuleCase {
    const char* Pieces;
    int From;
    int To;
    /// The beginning of it, or nothing for what may be played.
    const char* Broken;
};

TEST(RecordCheckTest, BrokenRulesAreNamed) {
    const std::vector<RuleCase> cases{
        {"r68 R69 B44", 68, 113, "there is no such square"},
        {"r68 R69 B44", -32768, 32767, "there is no such square"},
        {"r68 R69 B44", 67, 59, "no piece stands there"},
        {"r68 R69 B44", 44, 52, "the piece belongs to the other side"},
        {"r68 R69 B44", 68, 68, "the piece stays where it is"},
        {"r68 R69 B44", 0, 0, "a side that can move may not pass"},
        {"r68 R69 B44", 68, 36, "the way is blocked"},
        {"r68 r67 R69 B44", 68, 66, "the way is blocked"},
        {"r68 R69 B47", 68, 28, "too far: a slide"},
        {"r68 R69 B44", 68, 49, "pieces do not leave the field"},
        {"r68 R70 B44", 68, 87, "too far: pieces go"},
        {"r65 R69 B44", 65, 66, "the piece waits outside"},
        {"r12 R69 B44", 12, 4, "only the computer's carriers"},
        {"R20 B44", 20, 4, "only the computer's carriers"},
        {"R12 B44", 12, 5, "pieces do not leave the field"},
        {"R11 B44 b4", 11, 4, "an opponent waits in the goal"},
        {"R11 B44 b4", 0, 0, "a side that can move"},
        // Red has nobody in the field.
        {"r1 B44", 0, 0, ""},
        {"r68 r61 R69 B44", 68, 61, "a friendly piece stands there"},
        {"R68 r69 B44", 68, 69, "a ring is passed"},
        {"R68 R61 b44", 68, 61, "the receiver carries a ring itself"},
        {"R18 r9 B44", 18, 9, "a ring cannot be passed to a piece outside"},
        {"r68 R69 B52", 68, 52, "a ring carrier can only be pushed"},
        {"r68 R69 B44 b60 b52", 68, 60, "no room behind"},
        {"r68 r60 R69 B44 b52", 68, 52, "the way is blocked"},
        {"r76 R69 B44 b52", 76, 52, "too far: pieces push"},
        {"r68 R69 B44 b61", 68, 61, "pieces push along"},
        {"R68 B44 b60", 68, 60, "a ring carrier cannot push"},
        {"r65 R69 B44 b66", 65, 66, "the piece waits outside"},
        {"r18 R69 B44 b17", 18, 17, "a piece outside cannot be pushed"},
    };
    for (const auto& [pieces, from, to, broken] : cases) {
        Place(pieces);
        const std::string_view words = BrokenRule(from, to);
        EXPECT_TRUE(*broken == 0 ? words.empty() : words.starts_with(broken))
            << pieces << ": " << from << '-' << to << ' ' << words;
    }
    Place("r68 R69 B44 b60");
    Pos.LastHit = {2, 1};
    EXPECT_EQ(BrokenRule(68, 60), "the piece that has just hit this one cannot be pushed back");
}

TEST(RecordCheckTest, RingsArePlacedAsInTheGame) {
    SelectStartLayout(5);
    SetUpStartPosition();
    EXPECT_EQ(BrokenRule(68, 0), "");
    EXPECT_EQ(BrokenRule(74, 77), "");
    EXPECT_EQ(BrokenRule(28, 0), "only pieces 1 to 8 may take the ring");
    EXPECT_EQ(BrokenRule(42, 0), "the piece belongs to the other side");
    EXPECT_EQ(BrokenRule(60, 0), "no piece stands there to take the ring");
    EXPECT_EQ(BrokenRule(-1, 0), "there is no such square");
    EXPECT_EQ(BrokenRule(0, 0), "the ring must be given to a piece first");
    // A free setup, in which any piece may have it, writes its square there.
    RedStart[0] = 28;
    EXPECT_EQ(BrokenRule(28, 0), "");
}

/// Games by people, by the computer and by both, in all layouts and from setups with pieces
/// outside, with steps back.
class RecordedGamesTest : public GameTest {
protected:
    RecordedGamesTest() { Desk.Answer = true; }

    void SetUpByHand() {
        Start(FreeSetupLayout);
        for (const Int16 side : {Red, Blue}) {
            const int pieces = 2 + Below(Chances, 11);
            while (PieceCount(side) < pieces) Click(1 + Below(Chances, LastSquare));
            DoubleClick(side, 1 + Below(Chances, pieces));
        }
    }
    void PlaySome(int entries) {
        while (Pos.MoveCount <= entries) {
            if (Below(Chances, 12) == 0) StepBack();
            GenerateMoves(1);
            const Action action = BothRingsPlaced() ? DrawAction(Chances) : Action{};
            if (Below(Chances, 3) > 0 && action.first != NoSquare) {
                Drag(action.first, action.second);
            } else if (!PlayChosenMove(1)) {
                return;
            }
        }
    }
    void PlayGame(int number) {
        const int layout = number % LayoutCount;
        if (layout == FreeSetupLayout) {
            SetUpByHand();
        } else {
            Start(layout);
        }
        SetLevel(TwoPlayerLevel);
        PlaySome(10 + Below(Chances, 50));
    }

    FileDesk Desk;
    Dice Chances{3};
};

TEST_F(RecordedGamesTest, LawfulGamesAreNeverMarked) {
    for (int number = 0; number < 300; ++number) {
        PlayGame(number);
        SaveGameFile("game");
        const Position played = Pos;
        const RecordedGame game = ReadRecordedGame("game");
        EXPECT_TRUE(game.IsLawful()) << number << ' ' << Verdict(game) << BytesOf("game");
        ASSERT_EQ(game.PlayedEntries(), played.MoveCount - 1);
        if (number % LayoutCount == FreeSetupLayout) continue;
        EXPECT_EQ(game.Positions.back(), played);
    }
}

/// One entry is exchanged for any other: it is marked, unless it may be played as well.
TEST_F(RecordedGamesTest, ForeignEntriesAreMarked) {
    int marked = 0;
    for (int number = 0; number < 300; ++number) {
        if (number % LayoutCount == FreeSetupLayout) continue;
        PlayGame(number);
        const int entries = Pos.MoveCount - 1;
        const int entry = 3 + Below(Chances, entries - 2);
        for (; Pos.MoveCount > entry; StepBack()) {
        }
        const bool isHome = Below(Chances, 2) == 0;
        const int from = isHome ? SquareOf({Pos.SideToMove, 1}) : Below(Chances, 115);
        const int to = Below(Chances, 115);
        GenerateMoves(1);
        bool mayBe = IsAccepted(from, to);
        for (int n = 1; n <= CandidateCount[1]; ++n)
            mayBe |= MoveList[1][n] == EncodeMove(from, to);
        PlayedFrom[entry] = ToInt16(from);
        PlayedTo[entry] = ToInt16(to);
        Pos.MoveCount = ToInt16(entries + 1);
        SaveGameFile("game");
        const RecordedGame game = ReadRecordedGame("game");
        EXPECT_EQ(game.BrokenEntry == entry, !mayBe) << Verdict(game);
        marked += game.BrokenEntry == entry;
    }
    EXPECT_GT(marked, 150);
}

// ---- What is said about a game ----

RecordedGame Written(const std::string& text) {
    WriteBytes("g", text);
    return ReadRecordedGame("g");
}

/// Two pieces a side; the ring carriers stand before the goals.
const std::string Start = "2 2\n 4\n 20 68\n 109\n 92 44\n";

TEST(RecordReportTest, GamesAreTold) {
    FileDesk desk;
    const RecordedGame won = Written(Start + "5\n20 0 44 0\n20 12\n44 52\n12 4\n");
    EXPECT_EQ(Verdict(won), "g: 5 entries, Red wins with entry 3");
    EXPECT_EQ(MovesInWords(won),
              "   1. Red piece 1 takes the ring on row 3, column 4\n"
              "   2. Blue piece 2 takes the ring on row 6, column 4\n"
              "   3. Red piece 1 from row 3, column 4 to row 2, column 4\n"
              "      Red wins\n"
              "   4. Blue piece 2 from row 6, column 4 to row 7, column 4\n"
              "   5. Red piece 1 leaves the ring in Red's goal\n");
    EXPECT_EQ(Caption(won, 1), "After entry 1: Blue places its ring");
    EXPECT_EQ(Caption(won, 3), "After entry 3: Red wins");

    // What fits is played even so; what does not is the end.
    const RecordedGame broken = Written(Start + "6\n20 0\n44 0\n20 28 44 52\n0 0\n28 36\n");
    EXPECT_EQ(Verdict(broken),
              "g:10: entry 5 (0 0) breaks the rules: a side that can move may not pass");
    EXPECT_EQ(MovesInWords(broken).substr(MovesInWords(broken).find("   5")),
              "   5. Red passes\n"
              "      *** breaks the rules: a side that can move may not pass\n"
              "      the game cannot be played on from here\n");
    EXPECT_TRUE(MovesInWords(Written(Start + "1\n0 0\n"))
                    .starts_with("   1. Red gives the ring to no piece\n"));
}

/// Who stands beside the carriers goes back and forth until the record is full.
TEST(RecordReportTest, FullRecordIsADraw) {
    FileDesk desk;
    std::string entries = "200\n68 0 92 0\n20 19 44 43\n";
    for (int n = 2; n < 99; n += 2) entries += "19 20 43 44\n20 19 44 43\n";
    const RecordedGame game = Written(Start + entries);
    EXPECT_EQ(Verdict(game), "g: 200 entries, drawn: the record is full");
    EXPECT_EQ(Caption(game, 200), "After entry 200: drawn: the record is full");
    EXPECT_EQ(Caption(game, 199), "After entry 199: Blue to move");
}

TEST(RecordReportTest, PositionsAreDrawn) {
    Place("R20 r10 b109 b112 b1 b2 b3 b6 b7 b8 b16 b24 b32 r40");
    Pos.RingSquare[1] = 5;
    const std::string text = BoardAsText(Pos);
    EXPECT_EQ(text.substr(0, text.find("\n\n") + 1), R"(     1     2    3    4    5    6    7     8
  1  B3    B4   B5  goal ( )   B6   B7    B8
        +----------          ----------+
  2     |  R2   .    .    .    .    .  |  B9
  3     |  .    .   (R1)  .    .    .  | B10
  4     |  .    .    .    .    .    .  | B11
  5     |  .    .    .    .    .    .  |  R3
  6     |  .    .    .    .    .    .  |
  7     |  .    .    .    .    .    .  |
        +------------------------------+
  8     |  .    .    .    .    .    .  |
  9     |  .    .    .    .    .    .  |
 10     |  .    .    .    .    .    .  |
 11     |  .    .    .    .    .    .  |
 12     |  .    .    .    .    .    .  |
 13     |  .    .    .    .    .    .  |
        +----------          ----------+
 14                 goal  B1              B2
)");
    EXPECT_NE(text.find("\nOutside: Red piece 3 on row 5, column 8\n"), std::string::npos);
    const std::string picture = BoardAsSvg(Pos, "A caption");
    for (const char* part :
         {"<title>A caption</title>", "<title>row 1, column 5: Red's goal, a ring</title>",
          "<title>row 3, column 4: Red piece 1, carries a ring</title>",
          "<title>row 5, column 8: outside, Red piece 3</title>"}) {
        EXPECT_NE(picture.find(part), std::string::npos) << part;
    }
}

}  // namespace
}  // namespace brastel
