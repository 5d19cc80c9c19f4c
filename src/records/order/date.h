#pragma once

#include "framework/laid_out.h"
#include "framework/layout.h"

#include <cstdint>
#include <string>

namespace ItUnitechnik {

// The order's date: one field on a line of its own, which the order ends.
class Date : public LaidOut<Date> {
public:
    Date() = default;
    // Reads the text by position: day at 0 and 1, month at 3 and 4, year from
    // 6 on (up to four characters); the separators at 2 and 5 are not looked
    // at. Throws std::out_of_range "invalid string position" for a text of
    // fewer than 6 characters, std::invalid_argument "invalid stoi argument"
    // for a part with no number and std::out_of_range "stoi argument out of
    // range" for one too large. The year is converted first, the day last.
    Date(const std::wstring& text, std::int16_t version);

    bool Read(Archive& ar) override;

    std::int16_t version = 502; // decides the year's width: 2 below 502, else 4
    std::int16_t day = 0;
    std::int16_t month = 0;
    std::int16_t year = 0;
};

// The order ends the date's line.
template <class IO>
void Layout(IO& io, Date& date)
{
    io.UInt(2, date.day, "day");
    io.Literal(".");
    io.UInt(2, date.month, "month");
    io.Literal(".");
    io.UInt(date.version < 502 ? 2 : 4, date.year, "year");
}

} // namespace ItUnitechnik
