// What the tests of mounted parts share: blanks, the text a record writes, a
// part with every field set and the comparison of two parts' fields.
#pragma once

#include "records/outline/mounting_part.h"

#include "framework/serializable.h"
#include "geometry/line_segment.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>

namespace ItUnitechnik::MountingPartTesting {

using Testing::StringArchive;

inline std::wstring Spaces(std::size_t count)
{
    return std::wstring(count, L' ');
}

using Testing::Written;

// A part with every field set, as an anchor channel of 3000 by 2000.
inline MountingPart AnchorChannel(std::int16_t version)
{
    MountingPart part(version);
    part.partNumber = 12;
    part.partKind = L'B';
    part.partSubCode = 34;
    part.partCode = L"HTA-40";
    part.partName = L"Ankerschiene";
    part.partArea = 6.0;
    part.setValue1 = 5;
    part.setValue2 = 7;
    part.partValue1 = 1234;
    part.partValue2 = 56;
    part.partWidth = 3000;
    part.partHeight = 2000;
    part.geoData.emplace_back(version, L'S',
                              std::make_unique<LineSegment>(version, Point2d(0, 0), Point2d(3000, 2000)));
    return part;
}

inline void ExpectSameFields(const MountingPart& read, const MountingPart& written)
{
    EXPECT_EQ(read.partNumber, written.partNumber);
    EXPECT_EQ(read.partKind, written.partKind);
    EXPECT_EQ(read.partSubCode, written.partSubCode);
    EXPECT_EQ(read.partCode, written.partCode);
    EXPECT_EQ(read.partName, written.partName);
    EXPECT_EQ(read.partText1, written.partText1);
    EXPECT_EQ(read.partText2, written.partText2);
    EXPECT_EQ(read.partArea, written.partArea);
    EXPECT_EQ(read.setValue1, written.setValue1);
    EXPECT_EQ(read.setValue2, written.setValue2);
    EXPECT_EQ(read.position, written.position);
    EXPECT_EQ(read.partValue1, written.partValue1);
    EXPECT_EQ(read.partValue2, written.partValue2);
    EXPECT_EQ(read.partWidth, written.partWidth);
    EXPECT_EQ(read.partHeight, written.partHeight);
    EXPECT_EQ(read.geoData.size(), written.geoData.size());
}

} // namespace ItUnitechnik::MountingPartTesting
