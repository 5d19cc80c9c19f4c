#pragma once

#include <string>

namespace ItUnitechnik::Tool {

// A name or a value in double quotes, as the tool's messages and outlines
// show it.
inline std::string Quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

} // namespace ItUnitechnik::Tool
