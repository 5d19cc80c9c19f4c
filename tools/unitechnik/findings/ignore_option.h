#pragma once

#include "findings/findings.h"

#include <set>
#include <string>
#include <vector>

namespace CLI {
class App;
}

// --ignore CODE of check and convert: the findings a user leaves out.
namespace ItUnitechnik::Tool::Check {

// Adds --ignore, which may be given more than once, its texts into `texts`.
void AddIgnoreOption(CLI::App& app, std::vector<std::string>& texts);

// The codes of those texts, each an id or a name; BadInput for one that is
// neither, naming every code there is.
std::set<Code> IgnoredCodes(const std::vector<std::string>& texts);

} // namespace ItUnitechnik::Tool::Check
