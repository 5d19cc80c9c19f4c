#include "reading/loader.h"

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/line_segment.h"
#include "geometry/polygon.h"

#include <memory>

namespace ItUnitechnik {

void Loader::LoadPoint2d(Point2d& point, std::int32_t version)
{
    // Below 600 a point is unsigned (a negative one was written as 0); from
    // 600 the curves write it signed.
    if (version < 600) {
        point.x = in_.UInt<std::int32_t>(5);
        in_.Blank();
        point.y = in_.UInt<std::int32_t>(5);
    } else {
        point.x = in_.SInt<std::int32_t>(5);
        in_.Blank();
        point.y = in_.SInt<std::int32_t>(5);
    }
}

void Loader::LoadGeoData(GeoData& element)
{
    element.elementKind = in_.Char();
    in_.Blank();
    const std::int32_t version = element.version;
    switch (element.elementKind) {
    case L'S': {
        auto owned = std::make_unique<LineSegment>(version);
        LineSegment& line = *owned;
        element.curve = std::move(owned);
        LoadPoint2d(line.start, version);
        in_.Blank();
        LoadPoint2d(line.end, version);
        in_.Blank();
        line.flags = in_.Hex(4);
        break;
    }
    case L'K': {
        auto owned = std::make_unique<Circle>(version);
        Circle& circle = *owned;
        element.curve = std::move(owned);
        LoadPoint2d(circle.centre, version);
        in_.Blank();
        circle.radius = in_.UInt<std::int32_t>(5);
        in_.Blank();
        circle.flags = in_.Hex(4);
        break;
    }
    case L'B': {
        auto owned = std::make_unique<Arc>(version);
        Arc& arc = *owned;
        element.curve = std::move(owned);
        LoadPoint2d(arc.centre, version);
        in_.Blank();
        arc.radius = in_.UInt<std::int32_t>(5);
        in_.Blank();
        arc.startAngle = in_.UInt<std::int32_t>(3);
        in_.Blank();
        arc.endAngle = in_.UInt<std::int32_t>(3);
        in_.Blank();
        arc.flags = in_.UInt<std::int32_t>(3);
        Note(Departure::arcFlagsDecimal);
        break;
    }
    case L'P': {
        auto owned = std::make_unique<Polygon>(version);
        Polygon& polygon = *owned;
        element.curve = std::move(owned);
        const std::size_t count = Count(in_.UInt<std::int64_t>(1));
        in_.Blank();
        for (std::size_t i = 0; i < count; ++i) {
            if (i > 1) {
                in_.Blank();
            }
            polygon.points.emplace_back();
            LoadPoint2d(polygon.points.back(), version);
            in_.Blank();
            if (i > 0) {
                polygon.segmentFlags.push_back(in_.Hex(4));
            }
        }
        break;
    }
    default:
        in_.Fail("the kind of an outline piece: B, K, P or S");
    }
}

void Loader::LoadGeoDataLines(std::vector<GeoData>& elements, std::int32_t version)
{
    // The count ends the owner's line; each piece stands on a line of its
    // own, and with no pieces the owner's line is ended on its own.
    const std::size_t count = Count(in_.UInt<std::int64_t>(2));
    if (count == 0) {
        in_.EndLine();
    }
    for (std::size_t i = 0; i < count; ++i) {
        in_.EndLine();
        elements.emplace_back(version);
        LoadGeoData(elements.back());
    }
}

void Loader::LoadContours(ContourData& data)
{
    data.version = List(
        "CONTOUR_", [](std::int16_t) { return 2; }, data.contours,
        [](std::int16_t version) { return Contour(version); },
        [this](Contour& contour) {
            contour.contourNumber = in_.UInt<std::int32_t>(2);
            in_.Blank();
            contour.contourCode = Code(2);
            in_.Blank();
            LoadGeoDataLines(contour.geoData, contour.version);
        });
}

void Loader::LoadCutouts(CutoutData& data)
{
    data.version = List(
        "CUTOUT__", [](std::int16_t) { return 2; }, data.cutouts, [](std::int16_t version) { return Cutout(version); },
        [this](Cutout& cutout) {
            cutout.cutoutNumber = in_.UInt<std::int32_t>(2);
            in_.Blank();
            cutout.cutoutValue = in_.Real(2, 3);
            in_.Blank();
            if (cutout.version >= 600) {
                cutout.cutoutName = in_.Text(40);
                in_.Blank();
            }
            LoadGeoDataLines(cutout.geoData, cutout.version);
        });
}

void Loader::LoadParts(MountingPartData& data)
{
    // The count has two places below 502, three from it.
    data.version = List(
        "MOUNPART", [](std::int16_t version) { return version < 502 ? 2 : 3; }, data.parts,
        [](std::int16_t version) { return MountingPart(version); }, [this](MountingPart& part) { LoadPart(part); });
}

void Loader::LoadPart(MountingPart& part)
{
    // Line 1.
    part.partNumber = in_.UInt<std::int32_t>(part.version < 502 ? 2 : 3);
    in_.Blank();
    part.partKind = in_.Char();
    part.partSubCode = in_.UInt<std::int16_t>(2);
    in_.Blank();
    in_.Literal("000");
    in_.Blank();
    part.partCode = in_.Text(10);
    in_.Blank();
    part.partName = in_.Text(40);
    in_.EndLine();
    // Lines 2 and 3.
    if (part.version >= 600) {
        part.partText1 = in_.Text(20);
        in_.EndLine();
        part.partText2 = in_.Text(20);
        in_.EndLine();
    }
    // Last line.
    part.partArea = in_.Real(2, 3);
    in_.Blank();
    part.setValue1 = in_.UInt<std::int32_t>(3);
    in_.Blank();
    if (part.version >= 600) {
        part.position.x = in_.SInt<std::int32_t>(5);
        in_.Blank();
        part.position.y = in_.SInt<std::int32_t>(5);
        in_.Blank();
        part.setValue2 = in_.SInt<std::int32_t>(5);
    } else {
        part.setValue2 = in_.UInt<std::int32_t>(3);
    }
    in_.Blank();
    part.partValue1 = in_.UInt<std::int32_t>(4);
    in_.Blank();
    part.partValue2 = in_.UInt<std::int32_t>(3);
    in_.Blank();
    part.partWidth = in_.UInt<std::uint32_t>(5);
    in_.Blank();
    part.partHeight = in_.UInt<std::uint32_t>(5);
    in_.Blank();
    LoadGeoDataLines(part.geoData, part.version);
    if (!part.geoData.empty()) {
        Note(Departure::partWithPieces);
    }
}

} // namespace ItUnitechnik
