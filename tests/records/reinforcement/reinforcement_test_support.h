// What the tests of the reinforcement block share: its untouched text line,
// the record of a first mat, and a position.
#pragma once

#include <cstdint>
#include <string>

namespace ItUnitechnik::ReinforcementTesting {

// firstText (10 blanks), blank, secondText (4), blank, thirdText (8), blank,
// matFlag.
inline const std::wstring untouchedTextLine = L"          "
                                              L" "
                                              L"    "
                                              L" "
                                              L"        "
                                              L" 0";

// A mat as appendSteelmat makes it at 502, number 1, with no name.
inline const std::wstring firstMat502 = L"STEELMAT\n502\n"
                                        L"01 +00001 +00002 +00003 1 0 "
                                        L"                    "
                                        L" 03000 01200 1\n"
                                        L"END\n"
                                        L"RODSTOCK\n502\n000\nEND\n"
                                        L"BRGIRDER\n502\n000\nEND\n"
                                        L"END STEELMAT";

inline const std::int32_t somewhere[3] = {1, 2, 3};

} // namespace ItUnitechnik::ReinforcementTesting
