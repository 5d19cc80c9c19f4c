#include "bom/bill_of_materials.h"

#include "plant/plant_text.h"
#include "plant/plant_view.h"
#include "tree/element_places.h"

#include <nlohmann/json.hpp>

#include "framework/float_chars.h"
#include <algorithm>

#include <charconv>
#include <cmath>
#include <map>

namespace ItUnitechnik::Bom {

namespace {

std::string Metres(std::int64_t millimetres)
{
    char buffer[32];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, static_cast<double>(millimetres) / 1000.0,
                                   std::chars_format::fixed, 3);
    return {buffer, result.ptr};
}

// The characters of a UTF-8 text, for the width of a column.
std::size_t Characters(const std::string& text)
{
    return static_cast<std::size_t>(
        std::count_if(text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
}

// The table's columns side by side: text stands left, numbers right.
std::string TableText(const BillTable& table)
{
    std::vector<std::vector<std::string>> rows{table.header};
    rows.insert(rows.end(), table.rows.begin(), table.rows.end());
    std::vector<std::size_t> widths(table.header.size(), 0);
    for (const auto& row : rows) {
        for (std::size_t c = 0; c < row.size(); ++c) {
            widths[c] = std::max(widths[c], Characters(row[c]));
        }
    }
    std::string out;
    for (const auto& row : rows) {
        std::string line;
        for (std::size_t c = 0; c < row.size(); ++c) {
            const std::string fill(widths[c] - Characters(row[c]), ' ');
            line += "  " + (table.numeric[c] ? fill + row[c] : row[c] + fill);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out += line + "\n";
    }
    return out;
}

std::string CsvCell(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) {
        return text;
    }
    std::string quoted = "\"";
    for (const char c : text) {
        quoted += c;
        if (c == '"') {
            quoted += '"';
        }
    }
    return quoted + "\"";
}

std::string CsvLine(const std::vector<std::string>& cells)
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        line += (i == 0 ? "" : ",") + CsvCell(cells[i]);
    }
    return line + "\n";
}

} // namespace

std::string BillHeading(const ElementBill& bill)
{
    return "Order " + bill.order + ", element " + bill.element + (bill.text.empty() ? "" : ": " + bill.text);
}

std::vector<BillTable> BillTables(const ElementBill& bill)
{
    std::vector<BillTable> tables;

    BillTable bars{"Bars",
                   {"Grade", "Diameter (mm)", "Count", "Total length (m)", "Weight (kg)"},
                   {false, true, true, true, true},
                   {}};
    for (const BarLine& line : bill.bars) {
        bars.rows.push_back({line.grade, std::to_string(line.diameter), std::to_string(line.count),
                             Metres(line.totalLength), Plant::Kilograms(line.weight)});
    }
    tables.push_back(std::move(bars));

    BillTable girders{
        "Braced girders", {"Type", "Count", "Total length (m)", "Weight (kg)"}, {false, true, true, true}, {}};
    for (const GirderLine& line : bill.girders) {
        girders.rows.push_back(
            {line.type, std::to_string(line.count), Metres(line.totalLength), Plant::Kilograms(line.weight)});
    }
    tables.push_back(std::move(girders));

    BillTable mats{"Mats", {"Type", "Count"}, {false, true}, {}};
    for (const MatLine& line : bill.mats) {
        mats.rows.push_back({line.type, std::to_string(line.count)});
    }
    tables.push_back(std::move(mats));

    BillTable irons{"External irons", {"Name", "Count", "Weight (kg)"}, {false, true, true}, {}};
    for (const IronLine& line : bill.irons) {
        irons.rows.push_back({line.name, std::to_string(line.count), Plant::Kilograms(line.weight)});
    }
    tables.push_back(std::move(irons));

    BillTable parts{"Mounted parts", {"Name", "Count"}, {false, true}, {}};
    for (const PartLine& line : bill.parts) {
        parts.rows.push_back({line.name, std::to_string(line.count)});
    }
    tables.push_back(std::move(parts));

    BillTable layers{"Concrete layers",
                     {"Layer", "Kind", "Name", "Thickness (mm)", "Mass (kg)"},
                     {true, false, false, true, true},
                     {}};
    for (const LayerLine& line : bill.layers) {
        layers.rows.push_back({std::to_string(line.number), line.kind, line.name, std::to_string(line.thickness),
                               Plant::Kilograms(line.mass)});
    }
    tables.push_back(std::move(layers));
    return tables;
}

std::string BillTotals(const ElementBill& bill)
{
    return "Steel " + Plant::Kilograms(bill.steelWeight) + " kg, concrete " + Plant::Kilograms(bill.concreteMass) +
           " kg";
}

std::string BillText(const std::vector<ElementBill>& bills)
{
    std::string out;
    for (const ElementBill& bill : bills) {
        if (!out.empty()) {
            out += "\n";
        }
        out += BillHeading(bill) + "\n";
        for (const BillTable& table : BillTables(bill)) {
            out += "\n" + table.heading + "\n" + (table.rows.empty() ? std::string("  none\n") : TableText(table));
        }
        out += "\n" + BillTotals(bill) + "\n";
    }
    out += "\nFile: steel " + Plant::Kilograms(FileSteelWeight(bills)) + " kg, concrete " +
           Plant::Kilograms(FileConcreteMass(bills)) + " kg\n";
    return out;
}

std::string BillCsv(const std::vector<ElementBill>& bills)
{
    std::string out = CsvLine({"order", "element", "kind", "name", "diameter_mm", "count", "total_length_mm",
                               "thickness_mm", "weight_kg", "mass_kg"});
    for (const ElementBill& bill : bills) {
        const auto line = [&](const char* kind, const std::string& name, const std::string& diameter,
                              const std::string& count, const std::string& total, const std::string& thickness,
                              const std::string& weight, const std::string& mass) {
            out += CsvLine({bill.order, bill.element, kind, name, diameter, count, total, thickness, weight, mass});
        };
        for (const BarLine& l : bill.bars) {
            line("bar", l.grade, std::to_string(l.diameter), std::to_string(l.count), std::to_string(l.totalLength), "",
                 Plant::Kilograms(l.weight), "");
        }
        for (const GirderLine& l : bill.girders) {
            line("braced girder", l.type, "", std::to_string(l.count), std::to_string(l.totalLength), "",
                 Plant::Kilograms(l.weight), "");
        }
        for (const MatLine& l : bill.mats) {
            line("mat", l.type, "", std::to_string(l.count), "", "", "", "");
        }
        for (const IronLine& l : bill.irons) {
            line("external iron", l.name, "", std::to_string(l.count), "", "", Plant::Kilograms(l.weight), "");
        }
        for (const PartLine& l : bill.parts) {
            line("mounted part", l.name, "", std::to_string(l.count), "", "", "", "");
        }
        for (const LayerLine& l : bill.layers) {
            line("concrete layer", l.name, "", "", "", std::to_string(l.thickness), "", Plant::Kilograms(l.mass));
        }
        line("steel", "", "", "", "", "", Plant::Kilograms(bill.steelWeight), "");
        line("concrete", "", "", "", "", "", "", Plant::Kilograms(bill.concreteMass));
    }
    return out;
}

std::string BillJson(const std::vector<ElementBill>& bills)
{
    return BillJsonValue(bills).dump(2) + "\n";
}

nlohmann::ordered_json BillJsonValue(const std::vector<ElementBill>& bills)
{
    using nlohmann::ordered_json;
    ordered_json elements = ordered_json::array();
    for (const ElementBill& bill : bills) {
        ordered_json element = ordered_json::object();
        element["order"] = bill.order;
        element["element"] = bill.element;
        element["text"] = bill.text;
        element["bars"] = ordered_json::array();
        for (const BarLine& l : bill.bars) {
            element["bars"].push_back(ordered_json{{"grade", l.grade},
                                                   {"diameter", l.diameter},
                                                   {"count", l.count},
                                                   {"totalLength", l.totalLength},
                                                   {"weight", l.weight}});
        }
        element["girders"] = ordered_json::array();
        for (const GirderLine& l : bill.girders) {
            element["girders"].push_back(ordered_json{
                {"type", l.type}, {"count", l.count}, {"totalLength", l.totalLength}, {"weight", l.weight}});
        }
        element["mats"] = ordered_json::array();
        for (const MatLine& l : bill.mats) {
            element["mats"].push_back(ordered_json{{"type", l.type}, {"count", l.count}});
        }
        element["externalIrons"] = ordered_json::array();
        for (const IronLine& l : bill.irons) {
            element["externalIrons"].push_back(
                ordered_json{{"name", l.name}, {"count", l.count}, {"weight", l.weight}});
        }
        element["mountedParts"] = ordered_json::array();
        for (const PartLine& l : bill.parts) {
            element["mountedParts"].push_back(ordered_json{{"name", l.name}, {"count", l.count}});
        }
        element["concreteLayers"] = ordered_json::array();
        for (const LayerLine& l : bill.layers) {
            element["concreteLayers"].push_back(ordered_json{
                {"layer", l.number}, {"kind", l.kind}, {"name", l.name}, {"thickness", l.thickness}, {"mass", l.mass}});
        }
        element["steelWeight"] = bill.steelWeight;
        element["concreteMass"] = bill.concreteMass;
        elements.push_back(std::move(element));
    }
    ordered_json out = ordered_json::object();
    out["elements"] = std::move(elements);
    out["steelWeight"] = FileSteelWeight(bills);
    out["concreteMass"] = FileConcreteMass(bills);
    return out;
}

} // namespace ItUnitechnik::Bom
