#pragma once

#include <string>

// Texts and numbers as they stand in the SVG and HTML the renderer writes.
// Nothing here looks at the host's locale: a number always has a full stop.
namespace ItUnitechnik::Drawing {

// A coordinate or length in millimetres: at most two decimals, no exponent,
// no trailing zeros, and never "-0".
std::string Number(double value);

// The UTF-8 text with &, <, > and both quotes as entities, for an attribute
// or the content of an element; a control character other than tab and line
// end becomes U+FFFD.
std::string Escaped(const std::string& text);

} // namespace ItUnitechnik::Drawing
