#pragma once

#include "records/order/order.h"

#include <string>
#include <utility>
#include <vector>

// Every field of a record as name and value, from the one table of members
// (tree/record_fields.h): what hovering a drawn item shows, and what the HTML
// page lists. Nested records are named by their path, "position.x",
// "freeForm.parts[0].segments[1].angle"; texts stand without the blanks that
// fill their fields.
namespace ItUnitechnik::Drawing {

using FieldList = std::vector<std::pair<std::string, std::string>>;

FieldList FieldsOf(const Contour& record);
FieldList FieldsOf(const Cutout& record);
FieldList FieldsOf(const MountingPart& record);
FieldList FieldsOf(const Rodstock& record);
FieldList FieldsOf(const BracedGirder& record);
// The bars and girders of a mat are items of their own: the mat names only
// how many it holds.
FieldList FieldsOf(const Steelmat& record);
FieldList FieldsOf(const ExternalIron& record);

// "name: value", one line each.
std::string FieldLines(const FieldList& fields);

} // namespace ItUnitechnik::Drawing
