#pragma once

#include "records/order/order.h"

#include <cstdint>
#include <string>
#include <vector>

// The bill of materials of an element: what the plant's store hands out for
// it. Bars and girders are grouped, and their lengths added up, by the
// plant's conventions (svg/plant_conventions.h); the loose bars, the bars of
// every mat and those of every layer count alike.
namespace ItUnitechnik::Bom {

struct BarLine {
    std::string designation;
    std::int32_t diameter = 0;
    std::int64_t count = 0;
    std::int64_t totalLength = 0; // mm
};

struct GirderLine {
    std::string designation;
    std::int32_t type = 0;
    std::int64_t count = 0;
    std::int64_t totalLength = 0; // mm
};

struct MatLine {
    std::string name;
    std::int32_t length = 0; // along x, mm
    std::int32_t width = 0;  // along y, mm
    std::int64_t count = 0;
};

struct IronLine {
    std::string text;
    std::int32_t code = 0;
    double value = 0.0;
    std::int64_t count = 0; // pieces: the irons' counts added up
};

struct PartLine {
    std::string name;
    std::int64_t count = 0;
};

struct ElementBill {
    std::string order;               // the order's number
    std::string element;             // the element's number
    std::string text;                // the element's text
    std::vector<BarLine> bars;       // by designation, then diameter
    std::vector<GirderLine> girders; // by designation, then type
    std::vector<MatLine> mats;       // by name, then size
    std::vector<IronLine> irons;     // by text, then code and value
    std::vector<PartLine> parts;     // by name
};

// One table of the bill: a heading, the column names, which columns hold
// numbers, and the rows.
struct BillTable {
    std::string heading;
    std::vector<std::string> header;
    std::vector<bool> numeric;
    std::vector<std::vector<std::string>> rows;
};

// "Order ..., element ...: text"
std::string BillHeading(const ElementBill& bill);

// Bars, braced girders, mats, external irons and mounted parts, in this
// order, each also when it has no rows.
std::vector<BillTable> BillTables(const ElementBill& bill);

ElementBill BillOf(const Order& order, const ElementPart& element);

// Every element of the document, in file order.
std::vector<ElementBill> BillOfDocument(const std::vector<Order>& orders);

// A table per kind under a heading per element, for a person.
std::string BillText(const std::vector<ElementBill>& bills);

// One header line, then one line per group of every element.
std::string BillCsv(const std::vector<ElementBill>& bills);

// {"elements": [{"order", "element", "text", "bars": [...], ...}]}
std::string BillJson(const std::vector<ElementBill>& bills);

} // namespace ItUnitechnik::Bom
