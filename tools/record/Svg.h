#pragma once

#include <string>
#include <string_view>

/// Parts of SVG pictures. Texts must be without the reserved characters of XML.
namespace brastel {

/// ` name="value"`.
std::string Attribute(std::string_view name, int value);

/// A text, centred at x unless the look has another anchor.
std::string Text(std::string_view look, int x, int y, std::string_view text);

std::string Path(std::string_view look, const std::string& steps);

/// A glass bead in the colour of a side.
std::string Bead(int side, int x, int y, int radius);

/// A whole picture on the grey of the board, which can be read on light and dark pages. `title` is
/// for screen readers. The shapes are drawn before the texts.
std::string SvgPicture(int width, int height, std::string_view title, const std::string& shapes,
                       const std::string& texts);

}  // namespace brastel
