#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"

#include <array>
#include <cstdint>
#include <vector>

namespace ItUnitechnik {

// Where a welding point meets one crossing bar: an offset and a weld code.
class WeldingIntersection : public LaidOut<WeldingIntersection> {
public:
    bool Read(Archive& ar) override;

    std::int32_t offset = 0;   // 5 digits
    std::int32_t weldCode = 0; // 3 digits
};

// One welding point: always eight intersections on one line, also when fewer
// are in use.
class WeldingPoint final : public LaidOut<WeldingPoint> {
public:
    bool Read(Archive& ar) override;

    std::array<WeldingIntersection, 8> intersections{}; // the whole line, in order
};

// The welding points of a bar or braced girder, behind its lines; no tag.
class WeldingPointData : public LaidOut<WeldingPointData>, public ItCollectionImpl<std::vector<WeldingPoint>> {
public:
    // The head values get no value from the file's owner; a list that was
    // never read writes zeros and the letter '0'.
    WeldingPointData() : ItCollectionImpl(Locate<&WeldingPointData::points>) {}

    bool Read(Archive& ar) override;

    std::int32_t weldValueA = 0;      // head line, 3 digits
    std::int32_t weldValueB = 0;      // 3 digits
    std::int32_t weldValueC = 0;      // 3 digits
    wchar_t weldLetter = L'0';        // one character, no blank behind it
    bool weldFlag = false;            // one digit, the count right behind it
    std::vector<WeldingPoint> points; // one line each, behind the head line
};

template <class IO>
void Layout(IO& io, WeldingIntersection& intersection)
{
    io.UInt(5, intersection.offset, "offset");
    io.Blank();
    io.UInt(3, intersection.weldCode, "weldCode");
}

template <class IO>
void Layout(IO& io, WeldingPoint& point)
{
    io.Row(point.intersections);
}

// The last line is ended by the list that holds the bar or girder.
template <class IO>
void Layout(IO& io, WeldingPointData& points)
{
    io.UInt(3, points.weldValueA, "weldValueA");
    io.Blank();
    io.UInt(3, points.weldValueB, "weldValueB");
    io.Blank();
    io.UInt(3, points.weldValueC, "weldValueC");
    io.Blank();
    io.Char(points.weldLetter, "weldLetter");
    io.UInt(1, points.weldFlag, "weldFlag");
    const std::size_t count = io.Count(3, points.points, "points");
    io.OwnLines(count, points.points);
}

} // namespace ItUnitechnik
