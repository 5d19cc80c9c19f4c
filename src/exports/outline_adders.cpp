#include "itunitechnik.h"

#include "exports/document.h"
#include "exports/host_text.h"
#include "geometry/bounding_box.h"
#include "geometry/line_segment.h"

#include <cstddef>
#include <memory>
#include <utility>

using ItUnitechnik::BracedGirder;
using ItUnitechnik::Contour;
using ItUnitechnik::Cutout;
using ItUnitechnik::ElementPart;
using ItUnitechnik::FromHost;
using ItUnitechnik::GeoData;
using ItUnitechnik::LineSegment;
using ItUnitechnik::MountingPart;
using ItUnitechnik::OnCurrentElement;
using ItUnitechnik::Point2d;
using ItUnitechnik::theDocument;

namespace {

// One straight piece of an outline: a line element of the owner's version,
// moved into the owner's list, then the owner's hook.
template <class Owner>
void AddStraightPiece(Owner& owner, int32_t x0, int32_t y0, int32_t x1, int32_t y1)
{
    owner.geoData.emplace_back(owner.version, L'S',
                               std::make_unique<LineSegment>(owner.version, Point2d(x0, y0), Point2d(x1, y1)));
    owner.Changed();
}

// The pieces from each point to the next; the chain is not closed.
template <class Owner>
void AddChain(Owner& owner, int32_t pointCount, const int32_t* points)
{
    for (int32_t i = 1; i < pointCount; ++i) {
        const int32_t* const from = points + 2 * static_cast<std::ptrdiff_t>(i - 1);
        AddStraightPiece(owner, from[0], from[1], from[2], from[3]);
    }
}

uint32_t Distance(int32_t low, int32_t high)
{
    const int32_t difference = ItUnitechnik::WrappingSubtract(high, low);
    return difference < 0 ? 0u - static_cast<uint32_t>(difference) : static_cast<uint32_t>(difference);
}

int32_t AddMountingPart(ElementPart& element, const it_char16* setName, int32_t valueCount, const int32_t* values)
{
    MountingPart part(element.version);
    part.setValue1 = values[0];
    part.setValue2 = values[1];
    part.partName = FromHost(setName);

    // The box starts from these corners, not from the first point.
    ItUnitechnik::BoundingBox box(Point2d(1000000, 1000000), Point2d(-1000000, -1000000));
    if (valueCount > 2) {
        // A count that is not 2 plus a multiple of 4 is rounded up to whole pieces.
        const uint32_t pieces = (static_cast<uint32_t>(valueCount) - 3u) / 4u + 1u;
        for (uint32_t k = 0; k < pieces; ++k) {
            const int32_t* piece = values + 2 + 4 * static_cast<std::size_t>(k);
            box.widen(Point2d(piece[0], piece[1]));
            box.widen(Point2d(piece[2], piece[3]));
            AddStraightPiece(part, piece[0], piece[1], piece[2], piece[3]);
        }
    }
    part.partWidth = Distance(box.min.x, box.max.x);
    part.partHeight = Distance(box.min.y, box.max.y);
    // The product wraps in 32 bits before it becomes square metres.
    const int32_t area = static_cast<int32_t>(part.partWidth * part.partHeight);
    part.partArea = static_cast<double>(area) / 1000000.0;

    part.version = element.mountingPartData.version;
    part.partNumber = static_cast<int32_t>(element.mountingPartData.parts.size()) + 1;
    element.mountingPartData.parts.push_back(std::move(part));
    element.updateExtents();
    return 1;
}

int32_t AddGirders(ElementPart& element, const it_char16* setName, int32_t valueCount, const int32_t* values)
{
    // Groups of ten; a count that is not a multiple of ten is rounded up.
    for (int32_t index = 0; index < valueCount; index += 10) {
        const int32_t* g = values + index;
        BracedGirder girder;
        girder.code = L"000";
        girder.typeNumber = g[0];
        girder.designation = FromHost(setName);
        girder.firstSize = g[1];
        girder.position = Point2d(g[2], g[3]);
        girder.positionZ = g[4];
        girder.rotation = g[5];
        girder.mountFlag = false;
        girder.auxNumber = g[6];
        girder.thirdCode = L"000";
        girder.shortNumber = g[7];
        girder.scaledValue = g[8] / 1000.0;
        girder.lastNumber = g[9];
        element.bracedGirderData.appendGirder(girder);
        element.updateExtents();
    }
    return 1;
}

} // namespace

extern "C" {

// Nothing thrown inside the library reaches the host: each export ends in a
// handler that gives the result the header names for that case, its own or
// that of OnCurrentElement.

ITUNITECHNIK_API void addContour(int32_t pointCount, const int32_t* points)
{
    OnCurrentElement([&](ElementPart& element) {
        Contour contour(element.version);
        AddChain(contour, pointCount, points);
        element.appendContour(std::move(contour));
    });
}

ITUNITECHNIK_API void addCutout(const ItCutoutBlock* block, const int32_t* points)
{
    OnCurrentElement([&](ElementPart& element) {
        Cutout cutout(element.version);
        cutout.cutoutValue = block->cutoutValue;
        cutout.cutoutName = FromHost(block->cutoutName);
        AddChain(cutout, block->pointCount, points);
        element.appendCutout(std::move(cutout));
    });
}

ITUNITECHNIK_API int32_t addSet(int32_t setKind, const it_char16* setName, int32_t valueCount, const int32_t* values)
{
    return OnCurrentElement<int32_t>(0, 0, [&](ElementPart& element) -> int32_t {
        switch (setKind) {
        case 3:
            return AddMountingPart(element, setName, valueCount, values);
        case 5:
            return AddGirders(element, setName, valueCount, values);
        default:
            return 0;
        }
    });
}

} // extern "C"
