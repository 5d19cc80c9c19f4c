#pragma once

#include "records/order/order.h"

#include <cstdint>
#include <string>
#include <vector>

// The documents the drawing's tests look at, each written to a file and read
// back tolerantly, as the tool reads a file.
namespace ItUnitechnik::Testing {

// The example slab: examples/slab.json run through the library's exports.
// Its file is written as slab.uni into `directory`; the path comes back.
std::string WriteExampleSlab(const std::string& directory);

// An arched slab: a contour of three straight pieces and the arc about
// (3000, 2400) of radius 3000 from 0 to 180 degrees that closes it over
// the top, and a round opening about (3000, 3400) of radius 400. The exports
// make straight pieces only, so the arc and the circle are records put into
// the element by hand; the file is written through the records' Write.
std::string WriteArchedSlab(const std::string& directory);

// A loose bar as the plant reads a set: COUNT bars of DIAMETER and LENGTH,
// PITCH apart, of GRADE; version 600.
Rodstock BarSet(const wchar_t* grade, std::int32_t count, std::int32_t diameter, std::int32_t length,
                std::int32_t pitch = 0);

// A file read as the tool reads it; the test fails when the reading stops.
std::vector<Order> ReadBack(const std::string& path);

} // namespace ItUnitechnik::Testing
