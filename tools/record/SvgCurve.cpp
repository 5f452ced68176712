#include "engine/Strengths.h"
#include "play/Words.h"
#include "tools/record/ReviewReport.h"
#include "tools/record/Svg.h"

#include <algorithm>

namespace brastel {

namespace {

// ---- Places, in pixels of the picture ----

constexpr int Left = 76;
constexpr int Right = 24;
constexpr int Zero = 180;
/// From zero to the highest value on the axis, and to a win.
constexpr int HalfHeight = 100;
constexpr int WinHeight = 122;
constexpr int Top = Zero - WinHeight - 10;
constexpr int Bottom = Zero + WinHeight + 22;
constexpr int Height = Bottom + 64;
/// For the steps of all entries.
constexpr int PlotWidth = 640;
constexpr int MarkRadius = 6;

constexpr std::string_view AxisLook = R"(fill="none" stroke="#000" stroke-width="1.5")";
constexpr std::string_view GridLook = R"(fill="none" stroke="#000" stroke-opacity="0.3")";
constexpr std::string_view CurveLook =
    R"(fill="none" stroke="#000" stroke-width="1.5" stroke-linejoin="round")";
constexpr std::string_view AboveLook = R"x(clip-path="url(#brastel-above)" fill="#f404f6")x";
constexpr std::string_view BelowLook = R"x(clip-path="url(#brastel-below)" fill="#04f0f4")x";
constexpr std::string_view TitleLook = R"(font-size="15" font-weight="bold" text-anchor="start")";
constexpr std::string_view LabelLook = R"(font-size="12")";
constexpr std::string_view ValueLook = R"(font-size="12" text-anchor="end")";
constexpr std::string_view LegendLook = R"(font-size="12" text-anchor="start")";
constexpr std::string_view MarkLook = R"(font-size="11" font-weight="bold")";

std::string At(char command, int x, int y) {
    return command + std::to_string(x) + ' ' + std::to_string(y);
}

std::string HorizontalLine(int y, int right) { return At('M', Left, y) + At('L', right, y); }

/// The halves of the picture, which cut the area under the curve in two colours.
std::string ClipPaths() {
    const auto half = [](std::string_view name, int y, int height) {
        return "<clipPath id=\"brastel-" + std::string(name) + "\"><rect width=\"100%\"" +
               Attribute("y", y) + Attribute("height", height) + "/></clipPath>\n";
    };
    return half("above", 0, Zero) + half("below", Zero, Bottom - Zero);
}

class Curve {
public:
    Curve(const RecordedGame& game, const GameReview& review)
        : Game(game),
          Review(review),
          Count(std::max<int>(static_cast<int>(review.Entries.size()), 1)),
          Step(PlotWidth / Count) {
        for (const auto& [side, played, made, isWorst] : review.Entries) {
            if (!made || ExpectedWinner(made->Played) != Empty) continue;
            while (std::abs(made->Played) > Scale * UnitsPerPoint) Scale *= 2;
        }
    }

    std::string AsSvg() const {
        const std::string title = "Value of each move, by " + StrengthName(Review.Depth);
        const std::string texts = Text(TitleLook, Left, 28, title) + ValueLabels() + EntryLabels() +
                                  Legend() + MarksOf(Red) + MarksOf(Blue);
        return SvgPicture(X(Count) + Right, Height, title, Grid() + Line(), texts);
    }

private:
    int X(int entry) const { return Left + Step * entry; }
    int Y(RedValue value) const {
        if (const Int16 winner = ExpectedWinner(value)) return Zero + winner * WinHeight;
        return Zero - value * HalfHeight / (Scale * UnitsPerPoint);
    }

    std::string Grid() const {
        std::string lines;
        for (const int height : {-WinHeight, -HalfHeight, HalfHeight, WinHeight}) {
            lines += HorizontalLine(Zero + height, X(Count));
        }
        const std::string vertical = At('M', Left, Top) + At('L', Left, Bottom);
        return Path(GridLook, lines) + Path(AxisLook, vertical + HorizontalLine(Bottom, X(Count)));
    }

    /// Ring placements and passes have no value. There the line goes on to the next value.
    std::string Line() const {
        std::string line;
        std::string begin;
        int last = Left;
        for (int k = 1; k <= std::ssize(Review.Entries); ++k) {
            const auto& made = EntryOf(k).Made;
            if (!made) continue;
            if (line.empty()) begin = At('M', X(k), Zero);
            last = X(k);
            line += At('L', last, Y(made->Played));
        }
        if (line.empty()) return {};
        const std::string area = begin + line + At('L', last, Zero) + 'Z';
        line.front() = 'M';
        return ClipPaths() + Path(AboveLook, area) + Path(BelowLook, area) +
               Path(AxisLook, HorizontalLine(Zero, X(Count))) + Path(CurveLook, line);
    }

    std::string ValueLabels() const {
        const auto label = [](int y, const std::string& text) {
            return Text(ValueLook, Left - 8, y + 4, text);
        };
        return label(Zero - WinHeight, "Red wins") + label(Zero - HalfHeight, PointText('+')) +
               label(Zero, "0") + label(Zero + HalfHeight, PointText('-')) +
               label(Zero + WinHeight, "Blue wins");
    }
    std::string PointText(char sign) const { return sign + std::to_string(Scale); }

    std::string EntryLabels() const {
        const int distance = Count > 100 ? 20 : Count > 20 ? 10 : 1;
        std::string labels;
        for (int k = distance; k <= Count; k += distance) {
            labels += Text(LabelLook, X(k), Bottom + 16, std::to_string(k));
        }
        return labels + Text(ValueLook, Left - 8, Bottom + 16, "entry");
    }

    std::string Legend() const {
        constexpr int y = Bottom + 40;
        return Bead(Red, Left + MarkRadius, y, MarkRadius) +
               Text(LegendLook, Left + 18, y + 4, "above 0 good for Red") +
               Bead(Blue, Left + 180, y, MarkRadius) +
               Text(LegendLook, Left + 192, y + 4, "below 0 good for Blue") +
               Text(LegendLook, Left + 360, y + 4, "beads: the worst moves of a side");
    }

    /// A mistake of Red is a step down in the curve, so its number is below the mark. Numbers that
    /// would overlap are one line further away.
    std::string MarksOf(int side) const {
        constexpr int LineHeight = 12;
        std::string marks;
        int shift = 0;
        int previous = -PlotWidth;
        for (int k = 1; k <= std::ssize(Review.Entries); ++k) {
            const ReviewedEntry& entry = EntryOf(k);
            if (!entry.IsWorst || entry.Side != side) continue;
            shift = X(k) - previous < 24 ? shift + LineHeight : 0;
            previous = X(k);
            const int y = Y(entry.Made->Played);
            marks += "<g><title>" + MistakeInWords(Game, Review, k) + "</title>" +
                     Bead(side, X(k), y, MarkRadius) +
                     Text(MarkLook, X(k), y + 4 - side * (shift + 14), std::to_string(k)) +
                     "</g>\n";
        }
        return marks;
    }

    const ReviewedEntry& EntryOf(int k) const {
        return Review.Entries[static_cast<std::size_t>(k - 1)];
    }

    const RecordedGame& Game;
    const GameReview& Review;
    int Count;
    int Step;
    /// The highest value on the axis, in points.
    int Scale = 10;
};

}  // namespace

std::string ReviewAsSvg(const RecordedGame& game, const GameReview& review) {
    return Curve(game, review).AsSvg();
}

}  // namespace brastel
