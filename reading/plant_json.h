#pragma once

#include "records/order/order.h"

#include <nlohmann/json.hpp>

#include <vector>

// The orders as the plant reads them, in JSON: each element's outline,
// openings and parts with their pieces, its bar sets, girder groups, mats
// with their own sets and groups, irons and concrete layers. Every key of a
// set, group, mat, part, iron or layer is the plant's name of it in the table
// of plant/plant_meanings.h; coordinates are the element's millimetres.
namespace ItUnitechnik::Reading {

// {"orders": [{"number", "version", "elements": [...]}]}
nlohmann::ordered_json PlantJson(const std::vector<Order>& orders);

// The table of meanings: [{"record", "member", "name", "meaning", "unit"}].
nlohmann::ordered_json MeaningsJson();

} // namespace ItUnitechnik::Reading
