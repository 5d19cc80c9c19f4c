// What the tests of a bar and of the list of bars share: the lines of a
// default bar and of a bar with every field set, and the text a record writes.
#pragma once

#include "records/reinforcement/rodstock.h"

#include "framework/serializable.h"
#include "support/test_support.h"
#include "support/written.h"

#include <gtest/gtest.h>

#include <string>

namespace ItUnitechnik::RodstockTesting {

using Testing::StringArchive;

// The first line of a bar with default members at a version below 600, field
// by field: number, code, rodKind, blank, designation (3 places), blank,
// sizes, positions, rotation, blank, extraDesignation (10 places), blank,
// mountFlag.
inline const std::wstring defaultFirstLine502 = L"000 000 0 "
                                                L"   "
                                                L" 00000 000 00000 +00000 +00000 +00000 +000 "
                                                L"          "
                                                L" 0";
// The same from 600 on, with a designation of 10 places.
inline const std::wstring defaultFirstLine600 = L"000 000 0 "
                                                L"          "
                                                L" 00000 000 00000 +00000 +00000 +00000 +000 "
                                                L"          "
                                                L" 0";
// aux fields, then the flags 0, 0 and the bending kind '0'.
inline const std::wstring defaultSecondLine = L"000 000 000 00000 00000 00000 000";

using Testing::Written;

// A bar of version 600 with every field of its two lines set.
inline Rodstock FullBar()
{
    Rodstock bar(600);
    bar.number = 1;
    bar.code = L"7";
    bar.rodKind = 2;
    bar.designation = L"ABCDE";
    bar.firstSize = 1200;
    bar.secondSize = 12;
    bar.thirdSize = 300;
    bar.position = Point2d(150, -20);
    bar.positionZ = 40;
    bar.rotation = -90;
    bar.extraDesignation = L"XY";
    bar.mountFlag = true;
    bar.auxFirst = 5;
    bar.auxFourth = 100;
    bar.auxFifth = 200;
    bar.auxSixth = 300;
    return bar;
}

inline const std::wstring fullFirstLine = L"001 007 2 "
                                          L"ABCDE     "
                                          L" 01200 012 00300 +00150 -00020 +00040 -090 "
                                          L"        XY"
                                          L" 1";
inline const std::wstring fullSecondLine = L"005 000 000 00100 00200 00300 000";

} // namespace ItUnitechnik::RodstockTesting
