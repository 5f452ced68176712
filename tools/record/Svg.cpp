#include "tools/record/Svg.h"

#include "core/Position.h"

namespace brastel {

namespace {

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

constexpr std::string_view Texts =
    R"(<g font-family="'DejaVu Sans', Verdana, sans-serif" text-anchor="middle" fill="#000">)";

}  // namespace

std::string Attribute(std::string_view name, int value) {
    return ' ' + std::string(name) + "=\"" + std::to_string(value) + '"';
}

std::string Text(std::string_view look, int x, int y, std::string_view text) {
    return "<text " + std::string(look) + Attribute("x", x) + Attribute("y", y) + '>' +
           std::string(text) + "</text>\n";
}

std::string Path(std::string_view look, const std::string& steps) {
    return "<path " + std::string(look) + " d=\"" + steps + "\"/>\n";
}

std::string Bead(int side, int x, int y, int radius) {
    return "<circle" + Attribute("cx", x) + Attribute("cy", y) + Attribute("r", radius) +
           " fill=\"url(#brastel-" + (side == Red ? "red" : "blue") + ")\"/>";
}

std::string SvgPicture(int width, int height, std::string_view title, const std::string& shapes,
                       const std::string& texts) {
    std::string svg = "<svg xmlns=\"http://www.w3.org/2000/svg\" role=\"img\"";
    svg += Attribute("width", width) + Attribute("height", height);
    svg += " viewBox=\"0 0 " + std::to_string(width) + ' ' + std::to_string(height) + "\">\n";
    svg += "<title>" + std::string(title) + "</title>\n" + std::string(Definitions);
    svg += "<rect width=\"100%\" height=\"100%\" rx=\"6\" fill=\"#c0c0c0\"/>\n" + shapes;
    return svg + std::string(Texts) + '\n' + texts + "</g>\n</svg>\n";
}

}  // namespace brastel
