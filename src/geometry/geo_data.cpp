#include "geometry/geo_data.h"

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"

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

Curve* CloneOf(const Curve* curve)
{
    return curve != nullptr ? curve->clone().release() : nullptr;
}

} // namespace

GeoData::GeoData(std::int32_t formatVersion) : version(formatVersion) {}

GeoData::GeoData(std::int32_t formatVersion, wchar_t kind, std::unique_ptr<Curve> ownedCurve)
    : version(formatVersion), elementKind(kind), curve(ownedCurve.release())
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
    Curve* copy = CloneOf(other.curve);
    version = other.version;
    delete curve;
    curve = nullptr;
    elementKind = other.elementKind;
    curve = copy;
    return *this;
}

GeoData::GeoData(GeoData&& other) noexcept
    : Serializable(other), version(other.version), elementKind(other.elementKind), curve(other.curve)
{
    other.curve = nullptr;
}

GeoData& GeoData::operator=(GeoData&& other) noexcept
{
    if (this != &other) {
        version = other.version;
        elementKind = other.elementKind;
        delete curve;
        curve = other.curve;
        other.curve = nullptr;
    }
    return *this;
}

GeoData::~GeoData()
{
    delete curve;
    curve = nullptr;
}

bool GeoData::Read(Archive& ar)
{
    delete curve;
    curve = nullptr;
    ar >> elementKind;
    std::unique_ptr<Curve> made = MakeCurve(elementKind, version);
    if (!made) {
        return false;
    }
    curve = made.release();
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
