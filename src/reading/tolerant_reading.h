#pragma once

#include "reading/departures.h"
#include "reading/field_reader.h"
#include "records/order/order.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

// The tolerant reading: a loader of its own over the record classes that
// reads every document the writer makes, at every version, by the writer's
// own layout. The records' Read is left as the format's readers know it.
namespace ItUnitechnik {

struct TolerantDocument {
    std::vector<Order> orders;             // every order read, the last one perhaps in part
    std::optional<ReadStop> stop;          // where the reading stopped, when it did not reach the end
    bool trailingData = false;             // the stop is at bytes behind the last whole order
    std::vector<std::size_t> bareLineEnds; // lines (from 1) not ended by CR LF
    std::set<Departure> departures;        // what the document needed of the list

    bool Complete() const { return !stop.has_value(); }
};

// Reads a document from the bytes of its file: one character per byte, CR LF
// as the end of a line. Taken too, and noted among the departures: a bare line
// feed as a line end, the end of the file as the last line's end, and lines
// that lost their trailing blanks. A file cut off inside a record reads as far
// as it goes; `stop` says where.
TolerantDocument ReadTolerantly(const std::string& bytes);

// The same over a text whose lines end in single line feeds, as the summary
// string and the string archives give it.
TolerantDocument ReadTolerantlyText(const std::wstring& text);

} // namespace ItUnitechnik
