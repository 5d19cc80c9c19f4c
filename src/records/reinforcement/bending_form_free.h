#pragma once

#include "framework/collection.h"
#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ItUnitechnik {

// One segment of a free bending form: a length and the angle that follows it.
class BendingFormSegment final : public LaidOut<BendingFormSegment> {
public:
    explicit BendingFormSegment(std::int32_t segmentLength = 0, std::int32_t segmentAngle = 0)
        : length(segmentLength), angle(segmentAngle)
    {
    }

    bool Read(Archive& ar) override;

    std::int32_t length = 0; // 5 digits, no sign
    std::int32_t angle = 0;  // sign and 3 digits
};

// One line of a free bending form: its number and up to six segments.
class BendingFormPart : public LaidOut<BendingFormPart>, public ItCollectionImpl<std::vector<BendingFormSegment>> {
public:
    BendingFormPart() : ItCollectionImpl(Locate<&BendingFormPart::segments>) {}
    explicit BendingFormPart(std::int32_t number)
        : ItCollectionImpl(Locate<&BendingFormPart::segments>), partNumber(number)
    {
    }

    bool Read(Archive& ar) override;

    std::int32_t partNumber = 0;              // first on the line, 2 digits; from 1
    std::vector<BendingFormSegment> segments; // behind the count, in file order
};

// A free bending form: a code and its lines of segments, behind the bar's
// second line. The last line is ended by whoever writes the bar.
class BendingFormFree : public LaidOut<BendingFormFree>, public ItCollectionImpl<std::vector<BendingFormPart>> {
public:
    BendingFormFree() : ItCollectionImpl(Locate<&BendingFormFree::parts>) {}

    bool Read(Archive& ar) override;

    // Gives the form the code "000" and puts the segments into lines of six,
    // numbered from 1, in place of the lines it had. A count that is a
    // multiple of six leaves no empty line behind; no segments give no line.
    void buildFromSegments(const std::vector<BendingFormSegment>& entries);

    std::wstring formCode;              // first on the head line, 3 places
    std::vector<BendingFormPart> parts; // one line each, behind the head line
};

template <class IO>
void Layout(IO& io, BendingFormSegment& segment)
{
    io.UInt(5, segment.length, "length");
    io.Blank();
    io.SInt(3, segment.angle, "angle");
}

// A part's segments stand on its line, each behind a blank.
template <class IO>
void Layout(IO& io, BendingFormPart& part)
{
    io.UInt(2, part.partNumber, "partNumber");
    io.Blank();
    const std::size_t count = io.Count(2, part.segments, "segments");
    io.Run(count, part.segments);
}

template <class IO>
void Layout(IO& io, BendingFormFree& form)
{
    // No adjustment of its own: the bar's integer fields before it leave the
    // right alignment in force.
    io.RText(3, form.formCode, "formCode", Token);
    io.Blank();
    const std::size_t count = io.Count(2, form.parts, "parts");
    io.OwnLines(count, form.parts);
}

} // namespace ItUnitechnik
