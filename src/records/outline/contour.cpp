#include "records/outline/contour.h"

#include "framework/archive.h"
#include "framework/list_record.h"
#include "framework/read_idioms.h"

namespace ItUnitechnik {

Contour::Contour(std::int32_t formatVersion) : ItCollectionImpl(Locate<&Contour::geoData>), version(formatVersion) {}

bool Contour::Read(Archive& ar)
{
    ar >> contourNumber;
    const std::wstring code = ReadToken(ar);
    if (!ar.fail()) {
        contourCode = code;
    }
    std::int32_t count = 0;
    ar >> count;
    // Only the stream decides: an element of unknown kind is kept.
    ReadElements(
        ar, count, [&] { return GeoData(version); }, geoData);
    return Healthy(ar);
}

ContourData::ContourData() : ItCollectionImpl(Locate<&ContourData::contours>) {}

bool ContourData::Read(Archive& ar)
{
    // Unlike its sister records, a wrong end tag here does not spoil the
    // rest of the Archive.
    return ReadList(
        ar, L"CONTOUR_", version, [&] { return Contour(version); }, contours, WrongEnd::failsList);
}

BoundingBox Contour::boundingBox() const
{
    BoundingBox box;
    for (const GeoData& element : geoData) {
        if (element.curve != nullptr) {
            box.widen(element.curve->boundingBox());
        }
    }
    return box;
}

BoundingBox ContourData::boundingBox() const
{
    BoundingBox box;
    for (const Contour& contour : contours) {
        box.widen(contour.boundingBox());
    }
    return box;
}

} // namespace ItUnitechnik
