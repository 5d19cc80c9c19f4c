#pragma once

#include "geometry/circle.h"

namespace ItUnitechnik {

// A piece of a circle, kind 'B'. The moves, turns, mirrors and the box are
// the circle's: the angles are only stored and never change, and the box is
// that of the whole circle.
class Arc : public CurveOf<Arc, Circle> {
public:
    explicit Arc(std::int32_t formatVersion);

    bool Read(Archive& ar) override;

    std::int32_t startAngle = 0; // fourth field, three digits
    std::int32_t endAngle = 0;   // fifth field, three digits
};

// The flags go out in decimal, three digits, though Read takes them in
// hexadecimal: an arc with flags 10 is written 010 and read back as 16.
template <class IO>
void Layout(IO& io, Arc& arc)
{
    CentreAndRadiusLayout(io, arc);
    io.UInt(3, arc.startAngle, "startAngle");
    io.Blank();
    io.UInt(3, arc.endAngle, "endAngle");
    io.Blank();
    io.UInt(3, arc.flags, "flags");
}

} // namespace ItUnitechnik
