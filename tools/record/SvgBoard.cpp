#include "tools/record/SvgBoard.h"

#include "play/Words.h"

namespace brastel {

namespace {

constexpr int Margin = 28;
constexpr int CaptionHeight = 18;
constexpr int Width = BoardWidth + 2 * Margin;
constexpr int Height = BoardHeight + 2 * Margin + CaptionHeight;

/// The left edge of a column and the top edge of a row, in pixels of the picture.
constexpr int X(int column) { return Margin + column * CellSize; }
constexpr int Y(int row) { return Margin + row * CellSize; }

/// The colours of the window, with simpler glass beads.
constexpr std::string_view Definitions = R"(<defs>
<radialGradient id="brastel-red" cx="0.57" cy="0.62" r="0.62">
<stop offset="0" stop-color="#ff9cff"/>
<stop offset="0.3" stop-color="#ff3cff"/>
<stop offset="0.6" stop-color="#f404f6"/>
<stop offset="0.85" stop-color="#b400c4"/>
<stop offset="1" stop-color="#64007c"/>
</radialGradient>
<radialGradient id="brastel-blue" cx="0.57" cy="0.62" r="0.62">
<stop offset="0" stop-color="#c4ffff"/>
<stop offset="0.3" stop-color="#54ffff"/>
<stop offset="0.6" stop-color="#04f0f4"/>
<stop offset="0.85" stop-color="#00a8c4"/>
<stop offset="1" stop-color="#005878"/>
</radialGradient>
</defs>
)";

// Attributes and not a style sheet: a style sheet would also apply to a page around the picture.
constexpr std::string_view Thin =
    R"(fill="none" stroke="#000" stroke-width="1" shape-rendering="crispEdges")";
constexpr std::string_view Thick =
    R"(fill="none" stroke="#000" stroke-width="3" shape-rendering="crispEdges")";
constexpr std::string_view Ring =
    R"(<circle cx="20" cy="20" r="17.5" fill="none" stroke="#000" stroke-width="4.5"/>)";
constexpr std::string_view Glint =
    R"x(<ellipse rx="3.6" ry="2" transform="translate(12 11.5) rotate(-42)" fill="#fff" opacity="0.9"/>)x";
constexpr std::string_view Texts =
    R"(<g font-family="'DejaVu Sans', Verdana, sans-serif" text-anchor="middle" fill="#000">)";
constexpr std::string_view LabelFont = R"(font-size="12")";
constexpr std::string_view NumberFont = R"(font-size="13" font-weight="bold")";
constexpr std::string_view CaptionFont = R"(font-size="14")";

std::string Number(int value) { return std::to_string(value); }

/// name="value" after a space.
std::string Attribute(std::string_view name, int value) {
    return ' ' + std::string(name) + "=\"" + Number(value) + '"';
}

std::string Text(std::string_view font, int x, int y, std::string_view text) {
    return "<text " + std::string(font) + Attribute("x", x) + Attribute("y", y) + '>' +
           std::string(text) + "</text>\n";
}

std::string Path(std::string_view look, const std::string& steps) {
    return "<path " + std::string(look) + " d=\"" + steps + "\"/>\n";
}

std::string Step(char command, int column, int row) {
    return command + Number(X(column)) + ' ' + Number(Y(row));
}

/// The outline of the board and the squares of the field.
std::string Squares() {
    std::string path = Step('M', 0, 0) + Step('L', ColumnCount, 0) +
                       Step('L', ColumnCount, RowCount) + Step('L', 0, RowCount) + 'Z';
    for (int row = 1; row < RowCount; ++row) {
        path += Step('M', 1, row) + Step('L', ColumnCount - 1, row);
    }
    for (int column = 1; column < ColumnCount; ++column) {
        path += Step('M', column, 1) + Step('L', column, RowCount - 1);
    }
    return Path(Thin, path);
}

/// The centre line and the border, which is open at both goals.
std::string FieldLines() {
    constexpr int RightEnd = ColumnCount - 1;
    constexpr int Bottom = RowCount - 1;
    constexpr int GoalLeft = 3;
    constexpr int GoalRight = 5;
    return Path(Thick, Step('M', GoalLeft, 1) + Step('L', 1, 1) + Step('L', 1, Bottom) +
                           Step('L', GoalLeft, Bottom) + Step('M', GoalRight, 1) +
                           Step('L', RightEnd, 1) + Step('L', RightEnd, Bottom) +
                           Step('L', GoalRight, Bottom) + Step('M', 1, RowCount / 2) +
                           Step('L', RightEnd, RowCount / 2));
}

std::string Coordinates() {
    constexpr int Gap = 9;
    constexpr int HalfDigit = 4;
    std::string text;
    for (int column = 0; column < ColumnCount; ++column) {
        const std::string number = Number(column + 1);
        text += Text(LabelFont, X(column) + CellSize / 2, Y(0) - Gap, number);
    }
    for (int row = 0; row < RowCount; ++row) {
        const std::string number = Number(row + 1);
        text += Text(LabelFont, Margin / 2, Y(row) + CellSize / 2 + HalfDigit, number);
    }
    return text;
}

/// The piece and the ring of a square.
std::string Content(int square) {
    const Piece piece = PieceOn(square);
    std::string content = "<g transform=\"translate(" + Number(X(Column(square))) + ' ' +
                          Number(Y(Row(square))) + ")\"><title>" + SquareWithContent(square) +
                          "</title>\n";
    if (piece) {
        content += R"(<circle cx="20" cy="20" r="16" fill="url(#brastel-)";
        content += piece.Side == Red ? "red" : "blue";
        content += ")\"/>" + std::string(Glint) + '\n';
        content += Text(NumberFont, CellSize / 2, CellSize / 2 + 5, Number(piece.Index));
    }
    if (IsRingSquare(square)) content += std::string(Ring) + '\n';
    return content + "</g>\n";
}

}  // namespace

std::string BoardAsSvg(const Position& position, std::string_view caption) {
    Pos = position;
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\"";
    svg += Attribute("width", Width) + Attribute("height", Height);
    svg += " viewBox=\"0 0 " + Number(Width) + ' ' + Number(Height) + "\">\n<title>";
    svg += std::string(caption) + "</title>\n" + std::string(Definitions);
    svg += "<rect width=\"100%\" height=\"100%\" rx=\"6\" fill=\"#c0c0c0\"/>\n";
    svg += Squares() + FieldLines() + std::string(Texts) + '\n' + Coordinates();
    for (int square = FirstSquare; square <= LastSquare; ++square) {
        if (PieceOn(square) || IsRingSquare(square)) svg += Content(square);
    }
    svg += Text(CaptionFont, Width / 2, Height - CaptionHeight, caption);
    return svg + "</g>\n</svg>\n";
}

}  // namespace brastel
