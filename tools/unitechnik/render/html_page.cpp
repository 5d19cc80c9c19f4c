#include "render/html_page.h"

#include "plant/plant_meanings.h"
#include "render/markup_text.h"
#include "render/svg_document.h"

namespace ItUnitechnik::Drawing {

namespace {

const char* PageStyle()
{
    return "body { margin: 0; font-family: 'DejaVu Sans', 'Liberation Sans', Arial, sans-serif; color: #222222; "
           "background: #ffffff; }\n"
           "header { padding: 8px 16px; border-bottom: 1px solid #cccccc; }\n"
           "h1 { font-size: 20px; margin: 4px 0; } h2 { font-size: 16px; margin: 12px 0 6px; }\n"
           "h3 { font-size: 14px; margin: 10px 0 4px; }\n"
           "main { display: flex; gap: 16px; padding: 16px; align-items: flex-start; }\n"
           ".drawing { flex: 3 1 0; min-width: 0; }\n"
           ".drawing svg { display: block; width: 100%; height: auto; }\n"
           ".records { flex: 2 1 0; min-width: 0; max-height: 90vh; overflow: auto; font-size: 13px; }\n"
           ".bill { padding: 0 16px 16px; font-size: 13px; }\n"
           "table { border-collapse: collapse; margin-bottom: 8px; }\n"
           "th, td { border: 1px solid #cccccc; padding: 2px 6px; text-align: left; vertical-align: top; }\n"
           "td.number { text-align: right; }\n"
           "details pre { margin: 4px 0; font-size: 11px; white-space: pre-wrap; }\n";
}

std::string Cell(const std::string& text, bool number = false)
{
    return std::string(number ? "<td class=\"number\">" : "<td>") + Escaped(text) + "</td>";
}

void AddRow(std::string& out, const Item& item)
{
    out += "<tr id=\"row-" + Escaped(item.id) + "\">" + Cell(item.id) + Cell(item.label) + Cell(item.summary) +
           "<td><details><summary>" + std::to_string(item.fields.size()) + " fields</summary><pre>" +
           Escaped(FieldLines(item.fields)) + "</pre></details></td></tr>\n";
    for (const Item& part : item.parts) {
        AddRow(out, part);
    }
}

std::string RecordTable(const Scene& scene)
{
    std::string out =
        "<table class=\"record-table\">\n<tr><th>Id</th><th>Record</th><th>What</th><th>Fields</th></tr>\n";
    for (const Item& item : scene.items) {
        AddRow(out, item);
    }
    for (const Item& iron : scene.irons) {
        AddRow(out, iron);
    }
    return out + "</table>\n";
}

std::string BillTableHtml(const Bom::BillTable& table)
{
    std::string out = "<h3>" + Escaped(table.heading) + "</h3>\n";
    if (table.rows.empty()) {
        return out + "<p>none</p>\n";
    }
    out += "<table>\n<tr>";
    for (const std::string& name : table.header) {
        out += "<th>" + Escaped(name) + "</th>";
    }
    out += "</tr>\n";
    for (const auto& row : table.rows) {
        out += "<tr>";
        for (std::size_t c = 0; c < row.size(); ++c) {
            out += Cell(row[c], table.numeric[c]);
        }
        out += "</tr>\n";
    }
    return out + "</table>\n";
}

std::string MeaningsTable()
{
    std::string out = "<table class=\"meanings\">\n<tr><th>Record</th><th>Member</th><th>Read as</th><th>Meaning</th>"
                      "<th>Unit</th></tr>\n";
    for (const Plant::Row& row : Plant::Rows()) {
        out += "<tr>" + Cell(row.record) + Cell(row.member) + Cell(row.name) + Cell(row.meaning) + Cell(row.unit) +
               "</tr>\n";
    }
    return out + "</table>\n";
}

} // namespace

std::string HtmlPage(const std::vector<Scene>& scenes, const std::vector<Bom::ElementBill>& bills)
{
    std::string heading = "Unitechnik drawing";
    if (scenes.size() == 1) {
        heading = Heading(scenes[0]);
    }
    std::string out = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>" +
                      Escaped(heading) + "</title>\n<style>\n" + PageStyle() +
                      "</style>\n</head>\n<body>\n<header><h1>" + Escaped(heading) +
                      "</h1></header>\n<main>\n<section class=\"drawing\">\n";
    SvgOptions options;
    options.captions = scenes.size() > 1;
    options.xmlDeclaration = false;
    out += SvgDocument(scenes, options);
    out += "</section>\n<section class=\"records\">\n<h2>Records</h2>\n";
    for (const Scene& scene : scenes) {
        if (scenes.size() > 1) {
            out += "<h3>" + Escaped(Heading(scene)) + "</h3>\n";
        }
        out += RecordTable(scene);
    }
    out += "</section>\n</main>\n<section class=\"bill\">\n<h2>Bill of materials</h2>\n";
    for (const Bom::ElementBill& bill : bills) {
        if (bills.size() > 1) {
            out += "<h3>" + Escaped(Bom::BillHeading(bill)) + "</h3>\n";
        }
        for (const Bom::BillTable& table : Bom::BillTables(bill)) {
            out += BillTableHtml(table);
        }
        out += "<p class=\"bill-totals\">" + Escaped(Bom::BillTotals(bill)) + "</p>\n";
    }
    out += "<h2>How the plant reads the records</h2>\n" + MeaningsTable();
    return out + "</section>\n</body>\n</html>\n";
}

} // namespace ItUnitechnik::Drawing
