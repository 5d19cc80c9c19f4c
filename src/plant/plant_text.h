#pragma once

#include "plant/plant_view.h"

#include <string>

// What a person reads of a set, a group, a mat or a part, in UTF-8: the
// hover texts of the drawing and the lines of the record tree.
namespace ItUnitechnik::Plant {

// A mass or weight in kg as people read it: two decimals.
std::string Kilograms(double value);

// A text without the blanks that fill its field.
std::string Trimmed(const std::wstring& text);

// "12 × Ø10 × 5600 mm, pitch 150 mm, z 40 mm, grade 500"; a bent bar adds
// its legs.
std::string SetSummary(const BarSet& set);

// "12 × Ø10 × 5600 mm, pitch 150, at (200, 300), z 40, rotation 0"
std::string SetLine(const BarSet& set);

// "4 × 5400 mm, spacing 600 mm, height 80 mm, type KT 800"
std::string GroupSummary(const GirderGroup& group);

// "4 × 5400 mm, spacing 600, at (300, 400), rotation 0, height 80"
std::string GroupLine(const GirderGroup& group);

// "5800 × 2200 mm at (100, 100), z 35"
std::string MatLine(const Mat& mat);

// "height 100 mm, 0 mm above the pallet"
std::string PartLine(const Part& part);

} // namespace ItUnitechnik::Plant
