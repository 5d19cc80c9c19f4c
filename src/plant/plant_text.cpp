#include "plant/plant_text.h"

#include "platform/platform.h"

#include "framework/float_chars.h"

#include <charconv>

namespace ItUnitechnik::Plant {

namespace {

std::string Of(std::int32_t value)
{
    return std::to_string(value);
}

std::string At(std::int32_t x, std::int32_t y)
{
    return "(" + Of(x) + ", " + Of(y) + ")";
}

// "12 × Ø10 × 5600 mm"
std::string CountDiameterLength(const BarSet& set)
{
    return Of(set.count) + " \u00d7 \u00d8" + Of(set.diameter) + " \u00d7 " + Of(set.length) + " mm";
}

std::string Legs(const BarSet& set)
{
    if (set.legs.empty()) {
        return "";
    }
    return ", bent in " + std::to_string(set.legs.size()) + (set.legs.size() == 1 ? " leg" : " legs");
}

} // namespace

std::string Kilograms(double value)
{
    char buffer[64];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 2);
    return {buffer, result.ptr};
}

std::string Trimmed(const std::wstring& text)
{
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring::npos) {
        return "";
    }
    return Platform::ToUtf8(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}

std::string SetSummary(const BarSet& set)
{
    const std::string grade = Trimmed(set.grade);
    return CountDiameterLength(set) + ", pitch " + Of(set.pitch) + " mm, z " + Of(set.z) + " mm" +
           (grade.empty() ? "" : ", grade " + grade) + Legs(set);
}

std::string SetLine(const BarSet& set)
{
    return CountDiameterLength(set) + ", pitch " + Of(set.pitch) + ", at " + At(set.x, set.y) + ", z " + Of(set.z) +
           ", rotation " + Of(set.rotation) + Legs(set);
}

std::string GroupSummary(const GirderGroup& group)
{
    const std::string type = Trimmed(group.type);
    return Of(group.count) + " \u00d7 " + Of(group.length) + " mm, spacing " + Of(group.spacing) + " mm, height " +
           Of(group.height) + " mm" + (type.empty() ? "" : ", type " + type);
}

std::string GroupLine(const GirderGroup& group)
{
    return Of(group.count) + " \u00d7 " + Of(group.length) + " mm, spacing " + Of(group.spacing) + ", at " +
           At(group.x, group.y) + ", rotation " + Of(group.rotation) + ", height " + Of(group.height);
}

std::string MatLine(const Mat& mat)
{
    return Of(mat.length) + " \u00d7 " + Of(mat.width) + " mm at " + At(mat.x, mat.y) + ", z " + Of(mat.z);
}

std::string PartLine(const Part& part)
{
    return "height " + Of(part.height) + " mm, " + Of(part.installationHeight) + " mm above the pallet";
}

} // namespace ItUnitechnik::Plant
