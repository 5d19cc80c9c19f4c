#pragma once

#include "records/order/order.h"

#include <nlohmann/json.hpp>

#include <cstdint>
#include <string>
#include <vector>

// The bill of materials of an element: what the plant's store hands out for
// it, read as the plant reads the records (plant/plant_view.h). A bar record
// is a set of `count` bars, a girder record a group of `count` girders; the
// loose bars, the bars of every mat and those of every layer count alike.
namespace ItUnitechnik::Bom {

struct BarLine {
    std::string grade;
    std::int32_t diameter = 0;    // mm
    std::int64_t count = 0;       // bars: the sets' counts added up
    std::int64_t totalLength = 0; // mm: Σ count x length
    double weight = 0.0;          // kg, from the diameter
};

struct GirderLine {
    std::string type;
    std::int64_t count = 0;       // girders: the groups' counts added up
    std::int64_t totalLength = 0; // mm: Σ count x length
    double weight = 0.0;          // kg: Σ count x the weight of one girder
};

struct MatLine {
    std::string type;
    std::int64_t count = 0;
};

struct IronLine {
    std::string name;
    std::int64_t count = 0; // pieces
    double weight = 0.0;    // kg
};

struct PartLine {
    std::string name;
    std::int64_t count = 0;
};

struct LayerLine {
    std::int32_t number = 0; // the layer's running number
    std::string kind;        // "concrete", "insulation" or the kind's number
    std::string name;
    std::int32_t thickness = 0; // mm
    double mass = 0.0;          // kg: unit weight x net volume
};

struct ElementBill {
    std::string order;               // the order's number
    std::string element;             // the element's number
    std::string text;                // the element's text
    std::vector<BarLine> bars;       // by grade, then diameter
    std::vector<GirderLine> girders; // by type
    std::vector<MatLine> mats;       // by type
    std::vector<IronLine> irons;     // by name
    std::vector<PartLine> parts;     // by name
    std::vector<LayerLine> layers;   // in file order
    double steelWeight = 0.0;        // kg: bars, girders and irons
    double concreteMass = 0.0;       // kg: every layer
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

// Bars, braced girders, mats, external irons, mounted parts and concrete
// layers, in this order, each also when it has no rows.
std::vector<BillTable> BillTables(const ElementBill& bill);

// "Steel 123.45 kg, concrete 1918.08 kg"
std::string BillTotals(const ElementBill& bill);

ElementBill BillOf(const Order& order, const ElementPart& element);

// Every element of the document, in file order.
std::vector<ElementBill> BillOfDocument(const std::vector<Order>& orders);

// The steel and the concrete of every element together, in kg.
double FileSteelWeight(const std::vector<ElementBill>& bills);
double FileConcreteMass(const std::vector<ElementBill>& bills);

// A table per kind under a heading per element, the element's totals, and
// the file's steel weight at the end, for a person.
std::string BillText(const std::vector<ElementBill>& bills);

// One header line, then one line per group of every element and the
// element's totals.
std::string BillCsv(const std::vector<ElementBill>& bills);

// {"elements": [{"order", "element", "text", "bars": [...], ...}],
//  "steelWeight", "concreteMass"}
std::string BillJson(const std::vector<ElementBill>& bills);
// The same as a JSON value, for a reader that puts it into a document of its
// own.
nlohmann::ordered_json BillJsonValue(const std::vector<ElementBill>& bills);

} // namespace ItUnitechnik::Bom
