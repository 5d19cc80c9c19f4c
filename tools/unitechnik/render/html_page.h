#pragma once

#include "bom/bill_of_materials.h"
#include "render/scene.h"

#include <string>
#include <vector>

// One self-contained HTML page: the drawing, a table of the drawn records
// beside it and the bill of materials below. Nothing is fetched and nothing
// runs: no script, no link, no font from elsewhere.
namespace ItUnitechnik::Drawing {

std::string HtmlPage(const std::vector<Scene>& scenes, const std::vector<Bom::ElementBill>& bills);

} // namespace ItUnitechnik::Drawing
