#include "geometry/geo_data.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"

#include <utility>

namespace ItUnitechnik {
namespace {

// The curve class of a kind character, case-sensitive; null for any other.
std::unique_ptr<Curve> MakeCurve(wchar_t kind, std::int32_t version)
{
    switch (kind) {
    case L'B':
        return std::make_unique<Arc>(version);
    case L'K':
        return std::make_unique<Circle>(version);
    case L'P':
        return std::make_unique<Polygon>(version);
    case L'S':
        return std::make_unique<LineSegment>(version);
    default:
        return nullptr;
    }
}

std::unique_ptr<Curve> CloneOf(const std::unique_ptr<Curve>& curve)
{
    return curve != nullptr ? curve->clone() : nullptr;
}

} // namespace

GeoData::GeoData(std::int32_t formatVersion) : version(formatVersion) {}

GeoData::GeoData(std::int32_t formatVersion, wchar_t kind, std::unique_ptr<Curve> ownedCurve)
    : version(formatVersion), elementKind(kind), curve(std::move(ownedCurve))
{
}

GeoData::GeoData(const GeoData& other)
    : Serializable(other), version(other.version), elementKind(other.elementKind), curve(CloneOf(other.curve))
{
}

GeoData& GeoData::operator=(const GeoData& other)
{
    // The clone is taken before the old curve goes, so assigning an element
    // to itself keeps its curve.
    std::unique_ptr<Curve> copy = CloneOf(other.curve);
    version = other.version;
    elementKind = other.elementKind;
    curve = std::move(copy);
    return *this;
}

GeoData::GeoData(GeoData&& other) noexcept = default;
GeoData& GeoData::operator=(GeoData&& other) noexcept = default;
GeoData::~GeoData() = default;

bool GeoData::Read(Archive& ar)
{
    curve.reset();
    ar >> elementKind;
    curve = MakeCurve(elementKind, version);
    if (!curve) {
        return false;
    }
    curve->Read(ar); // only the stream decides
    return Healthy(ar);
}

bool GeoData::Write(Archive& ar)
{
    const RecordScope scope(ar, this);
    ar << Char(elementKind, "elementKind") << Blank;
    if (curve == nullptr) {
        ar.valid = false;
        return false;
    }
    curve->Write(ar);
    return Healthy(ar);
}

} // namespace ItUnitechnik
