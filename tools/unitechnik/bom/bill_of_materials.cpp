#include "bom/bill_of_materials.h"

#include "svg/element_places.h"
#include "svg/plant_conventions.h"
#include "tree/tree_text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <charconv>
#include <map>
#include <tuple>

namespace ItUnitechnik::Bom {

namespace {

using Drawing::kPlant;

std::string Shortest(double value)
{
    char buffer[64];
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

// Adds the records of one element into groups that keep their order.
class Collector {
public:
    void Element(const ElementPart& element)
    {
        for (const Rodstock& bar : element.rodstockData.bars) {
            Bar(bar);
        }
        for (const BracedGirder& girder : element.bracedGirderData.girders) {
            Girder(girder);
        }
        Block(element.reinforcement);
        for (const ExternalIron& iron : element.externalIronData.irons) {
            Iron(iron);
        }
        for (const MountingPart& part : element.mountingPartData.parts) {
            ++parts_[Tree::Shown(part.partName)];
        }
        for (const Layer& layer : element.layers) {
            Block(layer.reinforcement);
            for (const MountingPart& part : layer.mountingPartData.parts) {
                ++parts_[Tree::Shown(part.partName)];
            }
        }
    }

    void Into(ElementBill& bill) const
    {
        for (const auto& [key, line] : bars_) {
            bill.bars.push_back(line);
        }
        for (const auto& [key, line] : girders_) {
            bill.girders.push_back(line);
        }
        for (const auto& [key, line] : mats_) {
            bill.mats.push_back(line);
        }
        for (const auto& [key, line] : irons_) {
            bill.irons.push_back(line);
        }
        for (const auto& [name, count] : parts_) {
            bill.parts.push_back({name, count});
        }
    }

private:
    void Block(const Reinforcement& reinforcement)
    {
        for (const Steelmat& mat : reinforcement.mats) {
            MatLine& line = mats_[{Tree::Shown(mat.name), kPlant.matLength.Of(mat), kPlant.matWidth.Of(mat)}];
            line.name = Tree::Shown(mat.name);
            line.length = kPlant.matLength.Of(mat);
            line.width = kPlant.matWidth.Of(mat);
            ++line.count;
            for (const Rodstock& bar : mat.rodstocks.bars) {
                Bar(bar);
            }
            for (const BracedGirder& girder : mat.girders.girders) {
                Girder(girder);
            }
        }
        if (reinforcement.hasExternalIrons) {
            for (const ExternalIron& iron : reinforcement.externalIrons.irons) {
                Iron(iron);
            }
        }
    }

    void Bar(const Rodstock& bar)
    {
        const std::string designation = Tree::Shown(bar.designation);
        BarLine& line = bars_[{designation, kPlant.barDiameter.Of(bar)}];
        line.designation = designation;
        line.diameter = kPlant.barDiameter.Of(bar);
        ++line.count;
        line.totalLength += kPlant.barLength.Of(bar);
    }

    void Girder(const BracedGirder& girder)
    {
        const std::string designation = Tree::Shown(girder.designation);
        GirderLine& line = girders_[{designation, kPlant.girderType.Of(girder)}];
        line.designation = designation;
        line.type = kPlant.girderType.Of(girder);
        ++line.count;
        line.totalLength += kPlant.girderLength.Of(girder);
    }

    void Iron(const ExternalIron& iron)
    {
        const std::string text = Tree::Shown(iron.ironText);
        // A value that is not a number still makes one group.
        const double value = iron.ironValue == iron.ironValue ? iron.ironValue : 0.0;
        IronLine& line = irons_[{text, kPlant.ironCode.Of(iron), value}];
        line.text = text;
        line.code = kPlant.ironCode.Of(iron);
        line.value = value;
        line.count += kPlant.ironCount.Of(iron);
    }

    std::map<std::tuple<std::string, std::int32_t>, BarLine> bars_;
    std::map<std::tuple<std::string, std::int32_t>, GirderLine> girders_;
    std::map<std::tuple<std::string, std::int32_t, std::int32_t>, MatLine> mats_;
    std::map<std::tuple<std::string, std::int32_t, double>, IronLine> irons_;
    std::map<std::string, std::int64_t> parts_;
};

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

ElementBill BillOf(const Order& order, const ElementPart& element)
{
    ElementBill bill;
    bill.order = Drawing::OrderNumberText(order);
    bill.element = Drawing::ElementNumberText(element);
    bill.text = Tree::Shown(element.elementText30);
    Collector collector;
    collector.Element(element);
    collector.Into(bill);
    return bill;
}

std::vector<ElementBill> BillOfDocument(const std::vector<Order>& orders)
{
    std::vector<ElementBill> bills;
    for (const Drawing::ElementPlace& place : Drawing::ElementPlaces(orders)) {
        bills.push_back(BillOf(*place.order, *place.element));
    }
    return bills;
}

std::string BillHeading(const ElementBill& bill)
{
    return "Order " + bill.order + ", element " + bill.element + (bill.text.empty() ? "" : ": " + bill.text);
}

std::vector<BillTable> BillTables(const ElementBill& bill)
{
    std::vector<BillTable> tables;

    BillTable bars{
        "Bars", {"Designation", "Diameter (mm)", "Count", "Total length (mm)"}, {false, true, true, true}, {}};
    for (const BarLine& line : bill.bars) {
        bars.rows.push_back({line.designation, std::to_string(line.diameter), std::to_string(line.count),
                             std::to_string(line.totalLength)});
    }
    tables.push_back(std::move(bars));

    BillTable girders{
        "Braced girders", {"Designation", "Type", "Count", "Total length (mm)"}, {false, true, true, true}, {}};
    for (const GirderLine& line : bill.girders) {
        girders.rows.push_back({line.designation, std::to_string(line.type), std::to_string(line.count),
                                std::to_string(line.totalLength)});
    }
    tables.push_back(std::move(girders));

    BillTable mats{"Mats", {"Name", "Length (mm)", "Width (mm)", "Count"}, {false, true, true, true}, {}};
    for (const MatLine& line : bill.mats) {
        mats.rows.push_back(
            {line.name, std::to_string(line.length), std::to_string(line.width), std::to_string(line.count)});
    }
    tables.push_back(std::move(mats));

    BillTable irons{"External irons", {"Text", "Code", "Value", "Count"}, {false, true, true, true}, {}};
    for (const IronLine& line : bill.irons) {
        irons.rows.push_back({line.text, std::to_string(line.code), Shortest(line.value), std::to_string(line.count)});
    }
    tables.push_back(std::move(irons));

    BillTable parts{"Mounted parts", {"Name", "Count"}, {false, true}, {}};
    for (const PartLine& line : bill.parts) {
        parts.rows.push_back({line.name, std::to_string(line.count)});
    }
    tables.push_back(std::move(parts));
    return tables;
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
    }
    return out;
}

std::string BillCsv(const std::vector<ElementBill>& bills)
{
    std::string out = CsvLine({"order", "element", "kind", "name", "diameter_mm", "type", "code", "value", "length_mm",
                               "width_mm", "count", "total_length_mm"});
    for (const ElementBill& bill : bills) {
        const auto line = [&](const char* kind, const std::string& name, const std::string& diameter,
                              const std::string& type, const std::string& code, const std::string& value,
                              const std::string& length, const std::string& width, std::int64_t count,
                              const std::string& total) {
            out += CsvLine({bill.order, bill.element, kind, name, diameter, type, code, value, length, width,
                            std::to_string(count), total});
        };
        for (const BarLine& l : bill.bars) {
            line("bar", l.designation, std::to_string(l.diameter), "", "", "", "", "", l.count,
                 std::to_string(l.totalLength));
        }
        for (const GirderLine& l : bill.girders) {
            line("braced girder", l.designation, "", std::to_string(l.type), "", "", "", "", l.count,
                 std::to_string(l.totalLength));
        }
        for (const MatLine& l : bill.mats) {
            line("mat", l.name, "", "", "", "", std::to_string(l.length), std::to_string(l.width), l.count, "");
        }
        for (const IronLine& l : bill.irons) {
            line("external iron", l.text, "", "", std::to_string(l.code), Shortest(l.value), "", "", l.count, "");
        }
        for (const PartLine& l : bill.parts) {
            line("mounted part", l.name, "", "", "", "", "", "", l.count, "");
        }
    }
    return out;
}

std::string BillJson(const std::vector<ElementBill>& bills)
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
            element["bars"].push_back(ordered_json{{"designation", l.designation},
                                                   {"diameter", l.diameter},
                                                   {"count", l.count},
                                                   {"totalLength", l.totalLength}});
        }
        element["bracedGirders"] = ordered_json::array();
        for (const GirderLine& l : bill.girders) {
            element["bracedGirders"].push_back(ordered_json{
                {"designation", l.designation}, {"type", l.type}, {"count", l.count}, {"totalLength", l.totalLength}});
        }
        element["mats"] = ordered_json::array();
        for (const MatLine& l : bill.mats) {
            element["mats"].push_back(
                ordered_json{{"name", l.name}, {"length", l.length}, {"width", l.width}, {"count", l.count}});
        }
        element["externalIrons"] = ordered_json::array();
        for (const IronLine& l : bill.irons) {
            element["externalIrons"].push_back(
                ordered_json{{"text", l.text}, {"code", l.code}, {"value", l.value}, {"count", l.count}});
        }
        element["mountedParts"] = ordered_json::array();
        for (const PartLine& l : bill.parts) {
            element["mountedParts"].push_back(ordered_json{{"name", l.name}, {"count", l.count}});
        }
        elements.push_back(std::move(element));
    }
    ordered_json out = ordered_json::object();
    out["elements"] = std::move(elements);
    return out.dump(2) + "\n";
}

} // namespace ItUnitechnik::Bom
