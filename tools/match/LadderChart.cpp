#include "tools/match/LadderChart.h"

#include "engine/Strengths.h"
#include "tools/match/TableText.h"

#include <algorithm>
#include <cmath>

namespace brastel {

namespace {

// ---- Measures, in pixels ----

constexpr double Width = 860;
constexpr double Top = 126;
constexpr double RowHeight = 34;
/// Space below the lowest row for the numbers and the text of the axis.
constexpr double AxisHeight = 64;
constexpr double PlotLeft = 128;
constexpr double NameGap = 16;
constexpr double PlotRight = 704;
/// Margin of the texts at both sides.
constexpr double Margin = 24;
constexpr double BaselineOffset = 4.5;
/// Characters of the first line of terms.
constexpr std::size_t TermsLength = 64;
constexpr double CapHeight = 5;
constexpr double Radius = 5;
constexpr double ArrowLength = 34;

/// Two colour schemes. The picture has its own background, because it is also shown without a page.
constexpr const char* Style = R"(  <style>
    .ground { fill: #ffffff }
    text { fill: #57606a; font: 13px system-ui, "Segoe UI", "DejaVu Sans", sans-serif }
    .title { fill: #1f2328; font-size: 19px; font-weight: 600 }
    .name { fill: #1f2328; font-size: 14px; text-anchor: end }
    .terms { font-size: 12px }
    .value { text-anchor: end }
    .caption { fill: #57606a; font-size: 12px }
    .tick, .axis { text-anchor: middle }
    .grid { stroke: #e3e6ea }
    .zero { stroke: #a8b0b9 }
    .error { stroke: #1a7f9c; stroke-width: 2; fill: none }
    .mark { fill: #1a7f9c }
    .steps { stroke: #c217c2; stroke-opacity: .28; stroke-width: 2; fill: none }
    @media (prefers-color-scheme: dark) {
      .ground { fill: #0d1117 }
      text { fill: #9aa4af }
      .title, .name { fill: #e6edf3 }
      .caption { fill: #9aa4af }
      .grid { stroke: #21262d }
      .zero { stroke: #59626c }
      .error { stroke: #3fc6e6 }
      .mark { fill: #3fc6e6 }
      .steps { stroke: #ff5cff; stroke-opacity: .4 }
    }
  </style>
)";

/// The points at both ends of the axis, where ticks are, and the points between two ticks.
struct Axis {
    double Least;
    double Most;
    double Step;

    double At(double points) const {
        return PlotLeft + (PlotRight - PlotLeft) * (points - Least) / (Most - Least);
    }
};

/// 1, 2 or 5 times a power of ten, for about seven ticks.
double TickStep(double span) {
    const double rough = span / 7;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1, 2, 5}) {
        if (rough <= factor * power) return factor * power;
    }
    return 10 * power;
}

Axis AxisOf(const Ladder& ladder) {
    double least = 0;
    double most = 10;
    for (const LadderEntry& entry : ladder.Entries) {
        if (entry.Rating.Kind == Certainty::Unknown) continue;
        least = std::min(least, entry.Rating.Points - entry.Rating.Error);
        most = std::max(most, entry.Rating.Points + entry.Rating.Error);
    }
    const double step = TickStep(most - least);
    return {std::floor(least / step) * step, std::ceil(most / step) * step, step};
}

// ---- Elements ----

/// The text with the reserved characters of XML replaced.
std::string Escaped(const std::string& text) {
    std::string escaped;
    for (const char byte : text) {
        switch (byte) {
            case '&':
                escaped += "&amp;";
                break;
            case '<':
                escaped += "&lt;";
                break;
            default:
                escaped += byte;
        }
    }
    return escaped;
}

std::string TextElement(const char* kind, double x, double y, const std::string& text) {
    return Format("  <text class=\"%s\" x=\"%.1f\" y=\"%.1f\">", kind, x, y) + Escaped(text) +
           "</text>\n";
}

std::string LineElement(const char* kind, double x1, double y1, double x2, double y2) {
    return Format("  <line class=\"%s\" x1=\"%.1f\" y1=\"%.1f\" x2=\"%.1f\" y2=\"%.1f\"/>\n", kind,
                  x1, y1, x2, y2);
}

/// The terms in two lines, because they are too long for one.
std::string TermsLines(const std::string& terms) {
    const std::size_t comma = terms.rfind(", ", TermsLength);
    const std::size_t end = comma == std::string::npos ? terms.size() : comma + 2;
    return TextElement("terms", Margin, 64, terms.substr(0, end)) +
           TextElement("terms", Margin, 81, terms.substr(end));
}

double RowOf(const Ladder& ladder, std::size_t n) {
    return Top + RowHeight * (static_cast<double>(ladder.Entries.size() - n) - 0.5);
}
double Bottom(const Ladder& ladder) {
    return Top + RowHeight * static_cast<double>(ladder.Entries.size());
}

std::string Grid(const Ladder& ladder, const Axis& axis) {
    std::string grid;
    const double bottom = Bottom(ladder);
    const int ticks = static_cast<int>(std::lround((axis.Most - axis.Least) / axis.Step));
    for (int n = 0; n <= ticks; ++n) {
        const double points = axis.Least + n * axis.Step;
        const double x = axis.At(points);
        grid += LineElement(points == 0 ? "zero" : "grid", x, Top, x, bottom);
        grid += TextElement("tick", x, bottom + 20, Format("%.0f", points));
    }
    return grid;
}

/// The line from strength to strength, up to the first unknown rating.
std::string Steps(const Ladder& ladder, const Axis& axis) {
    std::string points;
    for (std::size_t n = 0; n < ladder.Entries.size(); ++n) {
        const Elo& rating = ladder.Entries[n].Rating;
        if (rating.Kind == Certainty::Unknown) break;
        points += Format("%.1f,%.1f ", axis.At(rating.Points), RowOf(ladder, n));
    }
    return "  <polyline class=\"steps\" points=\"" + points + "\"/>\n";
}

std::string ErrorBar(double left, double right, double y) {
    std::string bar = LineElement("error", left, y, right, y);
    for (const double x : {left, right}) {
        bar += LineElement("error", x, y - CapHeight, x, y + CapHeight);
    }
    return bar;
}

/// An arrow to the right, or to the left if the length is negative.
std::string Arrow(double x, double y, double length) {
    const double barb = std::copysign(CapHeight + 1, length);
    return Format(
        "  <path class=\"error\" d=\"M%.1f %.1f h%.1f m%.1f -%.1f l%.1f %.1f l%.1f "
        "%.1f\"/>\n",
        x, y, length, -barb, CapHeight, barb, CapHeight, -barb, CapHeight);
}

std::string Mark(const LadderEntry& entry, const Axis& axis, double y) {
    const Elo& rating = entry.Rating;
    const double x = axis.At(rating.Points);
    std::string circle =
        Format("  <circle class=\"mark\" cx=\"%.1f\" cy=\"%.1f\" r=\"%.1f\"/>\n", x, y, Radius);
    switch (rating.Kind) {
        case Certainty::Unknown:
            return {};
        case Certainty::AtLeast:
            return Arrow(x, y, ArrowLength) + circle;
        case Certainty::AtMost:
            return Arrow(x, y, -ArrowLength) + circle;
        case Certainty::Estimate:
            break;
    }
    if (rating.Error == 0) return circle;
    return ErrorBar(axis.At(rating.Points - rating.Error), axis.At(rating.Points + rating.Error),
                    y) +
           circle;
}

std::string Rows(const Ladder& ladder, const Axis& axis) {
    std::string rows = TextElement("name caption", PlotLeft - NameGap, Top - 10, "Strength") +
                       TextElement("value caption", Width - Margin, Top - 10, "Elo points");
    for (std::size_t n = 0; n < ladder.Entries.size(); ++n) {
        const LadderEntry& entry = ladder.Entries[n];
        const double y = RowOf(ladder, n);
        rows +=
            TextElement("name", PlotLeft - NameGap, y + BaselineOffset, StrengthName(entry.Level));
        rows += Mark(entry, axis, y);
        rows += TextElement("value", Width - Margin, y + BaselineOffset, entry.Cells[RatingColumn]);
    }
    return rows;
}

}  // namespace

std::string LadderChart(const Ladder& ladder) {
    if (ladder.Entries.empty()) return {};
    const Axis axis = AxisOf(ladder);
    const double height = Bottom(ladder) + AxisHeight;
    const std::string title = "How strong the computer plays";
    const std::string unit = "Elo points above " + StrengthName(ladder.Entries.front().Level) +
                             ", with 95 % confidence intervals";
    return Format(
               "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %.0f %.0f\" "
               "width=\"%.0f\" height=\"%.0f\" role=\"img\">\n",
               Width, height, Width, height) +
           "  <title>" + title + "</title>\n" + Style +
           "  <rect class=\"ground\" width=\"100%\" height=\"100%\"/>\n" +
           TextElement("title", Margin, 40, title) + TermsLines(ladder.Terms) + Grid(ladder, axis) +
           Steps(ladder, axis) + Rows(ladder, axis) +
           TextElement("axis", (PlotLeft + PlotRight) / 2, height - 20, unit) + "</svg>\n";
}

}  // namespace brastel
