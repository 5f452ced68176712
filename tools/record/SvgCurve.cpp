#include "engine/Strengths.h"
#include "tools/record/Review.h"
#include "tools/record/Svg.h"

#include <algorithm>

namespace brastel {

namespace {

constexpr int Width = 740;
constexpr int Height = 388;
/// The plot: its left edge and width, zero, and the heights of the scale's end and of a win.
constexpr int LeftEdge = 76;
constexpr int PlotWidth = 640;
constexpr int Zero = 180;
constexpr int ScaleHeight = 100;
constexpr int WinHeight = 122;
constexpr int MarkRadius = 6;

/// The area under the curve changes its colour at zero.
constexpr std::string_view AreaColours =
    R"(<linearGradient id="brastel-sides" gradientUnits="userSpaceOnUse" x2="0" y2="360">
<stop offset="0.5" stop-color="#f404f6"/><stop offset="0.5" stop-color="#04f0f4"/></linearGradient>
)";
constexpr std::string_view Axes =
    R"(<path fill="none" stroke="#000" stroke-opacity="0.3" d="M76 58h640M76 80h640M76 280h640M76 302h640"/>
<path fill="none" stroke="#000" stroke-width="1.5" d="M76 48v276h640M76 180h640"/>
<path fill="#f404f6" d="M76 358h12v12h-12z"/><path fill="#04f0f4" d="M250 358h12v12h-12z"/>
)";
constexpr std::string_view Labels =
    R"(<g font-size="12" text-anchor="end"><text x="68" y="62">Red wins</text>
<text x="68" y="184">0</text><text x="68" y="306">Blue wins</text><text x="68" y="340">entry</text></g>
<g font-size="12" text-anchor="start"><text x="94" y="368">above 0 good for Red</text>
<text x="268" y="368">below 0 good for Blue</text>
<text x="464" y="368">the worst moves</text></g>
)";
constexpr std::string_view AreaLook = R"x(fill="url(#brastel-sides)")x";
constexpr std::string_view CurveLook =
    R"(fill="none" stroke="#000" stroke-width="1.5" stroke-linejoin="round")";
constexpr std::string_view TitleLook = R"(font-size="15" font-weight="bold" text-anchor="start")";
constexpr std::string_view ScaleLook = R"(font-size="12" text-anchor="end")";
constexpr std::string_view EntryLook = R"(font-size="12")";
constexpr std::string_view MarkLook = R"(font-size="11" font-weight="bold")";

struct Curve {
    const GameReview& Review;
    int Count = std::max(static_cast<int>(Review.Entries.size()), 1);
    /// The highest value of the scale, in points.
    int Scale = 10;

    int X(int entry) const { return LeftEdge + PlotWidth * entry / Count; }
    int Y(RedValue value) const {
        if (const Int16 winner = ExpectedWinner(value)) return Zero + winner * WinHeight;
        return Zero - value * ScaleHeight / (Scale * UnitsPerPoint);
    }
};

Curve CurveOf(const GameReview& review) {
    Curve curve{review};
    for (const ReviewedEntry& entry : review.Entries) {
        if (ExpectedWinner(entry.Value) != Empty) continue;
        while (std::abs(entry.Value) > curve.Scale * UnitsPerPoint) curve.Scale *= 2;
    }
    return curve;
}

/// Ring placements and passes have no value. There the line goes on to the next value.
std::string Shapes(const Curve& curve) {
    std::string line;
    std::string begin;
    std::string end;
    int k = 0;
    for (const ReviewedEntry& entry : curve.Review.Entries) {
        const std::string x = std::to_string(curve.X(++k)) + ' ';
        if (!entry.HasValue) continue;
        if (line.empty()) begin = 'M' + x + std::to_string(Zero);
        line += 'L' + x + std::to_string(curve.Y(entry.Value));
        end = 'L' + x + std::to_string(Zero) + 'Z';
    }
    const std::string area = begin + line + end;
    if (!line.empty()) line.front() = 'M';
    return std::string(AreaColours) + Path(AreaLook, area) + std::string(Axes) +
           Path(CurveLook, line);
}

std::string Numbers(const Curve& curve) {
    constexpr int X = LeftEdge - 8;
    const std::string scale = std::to_string(curve.Scale);
    std::string numbers = Text(ScaleLook, X, Zero - ScaleHeight + 4, '+' + scale) +
                          Text(ScaleLook, X, Zero + ScaleHeight + 4, '-' + scale);
    const int distance = curve.Count > 100 ? 20 : curve.Count > 20 ? 10 : 1;
    for (int k = distance; k <= curve.Count; k += distance) {
        numbers += Text(EntryLook, curve.X(k), 340, std::to_string(k));
    }
    return numbers;
}

/// The worst moves of a side. A mistake of Red is a step down in the curve, so its number is below
/// the mark. Numbers that would overlap are one line further away.
std::string Marks(const Curve& curve, const RecordedGame& game, int side) {
    std::string marks;
    int previous = 0;
    int distance = 0;
    int k = 0;
    for (const ReviewedEntry& entry : curve.Review.Entries) {
        const int x = curve.X(++k);
        if (!entry.IsWorst || entry.Side != side) continue;
        distance = x - previous < 24 ? distance + 12 : 14;
        previous = x;
        const int y = curve.Y(entry.Value);
        marks += "<g><title>" + MistakeInWords(game, k, entry) + "</title>" +
                 Bead(side, x, y, MarkRadius) +
                 Text(MarkLook, x, y + 4 - side * distance, std::to_string(k)) + "</g>\n";
    }
    return marks;
}

}  // namespace

std::string ReviewAsSvg(const RecordedGame& game, const GameReview& review) {
    const Curve curve = CurveOf(review);
    const std::string title = "Value of each move, by " + StrengthName(review.Depth);
    const std::string legend = Bead(Red, 436, 364, MarkRadius) + Bead(Blue, 451, 364, MarkRadius);
    return SvgPicture(Width, Height, title, Shapes(curve),
                      Text(TitleLook, LeftEdge, 28, title) + std::string(Labels) + legend +
                          Numbers(curve) + Marks(curve, game, Red) + Marks(curve, game, Blue));
}

}  // namespace brastel
