// The entry points of the viewer's WebAssembly module: the bytes of a file go
// in, UTF-8 text comes out. Each call runs the tool's own code (the tolerant
// reading, render, check, bom and dump --tree), so the page shows what the
// native tool prints, byte for byte. The page's script only moves bytes in
// and text out.
//
// A result stays valid until the next call; utw_length() gives its length in
// bytes. A text that cannot be made (one too large for the module's memory)
// is given as an empty text.
#include "bom/bill_of_materials.h"
#include "build/runner.h"
#include "build/script.h"
#include "check/file_check.h"
#include "dump/tree_text.h"
#include "example_slab.h"
#include "files/files.h"
#include "findings/findings.h"
#include "input/document_input.h"
#include "input/json_input.h"
#include "reading/tolerant_reading.h"
#include "render/scene.h"
#include "render/svg_document.h"
#include "tree/element_places.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <exception>
#include <optional>
#include <string>
#include <vector>

namespace {

std::string bytes;                       // the file as it was opened
ItUnitechnik::TolerantDocument document; // read tolerantly
std::vector<ItUnitechnik::Drawing::ElementPlace> places;
std::string result; // the last text given out

const char* Give(std::string text)
{
    result = std::move(text);
    return result.c_str();
}

std::string StopJson()
{
    if (document.Complete()) {
        return "null";
    }
    const ItUnitechnik::ReadStop& stop = *document.stop;
    nlohmann::ordered_json out = nlohmann::ordered_json::object();
    out["line"] = stop.line;
    out["column"] = stop.column;
    // What was expected, as the tool tells it after PATH:LINE:COLUMN: .
    const std::string place = ":" + std::to_string(stop.line) + ":" + std::to_string(stop.column) + ": ";
    out["message"] = ItUnitechnik::Tool::StopMessage("", stop).substr(place.size());
    return out.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

// The example's calls change nothing but the file they write.
class QuietRun final : public ItUnitechnik::Tool::Script::RunObserver {
public:
    void Called(const ItUnitechnik::Tool::Script::Call&, const ItUnitechnik::Tool::Script::Outcome&) override {}
    void Wrote(const std::string&) override {}
};

} // namespace

extern "C" {

int utw_open(const char* data, std::size_t size);

// Builds the example slab as `unitechnik build examples/slab.json` does (its
// calls run through the library's exports, into the module's memory) and
// opens it; the status of utw_open, or 2 when it could not be built.
int utw_example()
{
    const std::string path = "/example-slab.uni";
    try {
        std::vector<ItUnitechnik::Tool::Script::Call> calls = ItUnitechnik::Tool::Script::ReadCalls(
            ItUnitechnik::Tool::ParseJsonText(UnitechnikWeb::ExampleSlabScript()));
        ItUnitechnik::Tool::Script::RedirectLastDocument(calls, path);
        QuietRun observer;
        ItUnitechnik::Tool::Script::RunCalls(calls, observer);
    } catch (const std::exception&) {
        return 2;
    }
    const std::optional<std::string> written = ItUnitechnik::Tool::ReadWholeFile(path);
    if (!written) {
        return 2;
    }
    return utw_open(written->data(), written->size());
}

// The bytes of the file opened last (the example's, after utw_example).
const char* utw_bytes()
{
    result = bytes;
    return result.data();
}

// Reads SIZE bytes at DATA; 0 when read to the end, 1 when the reading
// stopped (utw_stop tells where), 2 when nothing could be read.
int utw_open(const char* data, std::size_t size)
{
    try {
        bytes.assign(data, size);
        document = ItUnitechnik::ReadTolerantly(bytes);
        places = ItUnitechnik::Drawing::ElementPlaces(document.orders);
        return document.Complete() ? 0 : 1;
    } catch (const std::exception&) {
        document = ItUnitechnik::TolerantDocument();
        places.clear();
        return 2;
    }
}

// Where the reading stopped: {"line":..,"column":..,"message":".."}, or null.
const char* utw_stop()
{
    return Give(StopJson());
}

// The elements: [{"order":1,"element":1,"heading":"Order ..., element ..."}, ...].
const char* utw_elements()
{
    try {
        nlohmann::ordered_json out = nlohmann::ordered_json::array();
        for (const ItUnitechnik::Drawing::ElementPlace& place : places) {
            nlohmann::ordered_json item = nlohmann::ordered_json::object();
            item["order"] = place.orderIndex;
            item["element"] = place.elementIndex;
            // The heading needs the place alone, not the drawing's items.
            ItUnitechnik::Drawing::Scene scene;
            scene.place = place;
            item["heading"] = ItUnitechnik::Drawing::Heading(scene);
            out.push_back(std::move(item));
        }
        return Give(out.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
    } catch (const std::exception&) {
        return Give(std::string()); // too large for the module's memory, or not to be made
    }
}

// render FILE --order ORDER --element ELEMENT: the SVG of one element; an
// empty text when the file has no such element.
const char* utw_svg(std::size_t order, std::size_t element)
{
    try {
        std::vector<ItUnitechnik::Drawing::Scene> scenes;
        for (const ItUnitechnik::Drawing::ElementPlace& place : places) {
            if (place.orderIndex == order && place.elementIndex == element) {
                scenes.push_back(ItUnitechnik::Drawing::MakeScene(place, ""));
            }
        }
        if (scenes.empty()) {
            return Give(std::string());
        }
        return Give(ItUnitechnik::Drawing::SvgDocument(scenes, ItUnitechnik::Drawing::SvgOptions()));
    } catch (const std::exception&) {
        return Give(std::string()); // too large for the module's memory, or not to be made
    }
}

// dump --tree FILE.
const char* utw_tree()
{
    try {
        return Give(ItUnitechnik::Tree::TreeText(document.orders));
    } catch (const std::exception&) {
        return Give(std::string()); // too large for the module's memory, or not to be made
    }
}

// bom FILE --json.
const char* utw_bom_json()
{
    try {
        return Give(ItUnitechnik::Bom::BillJson(ItUnitechnik::Bom::BillOfDocument(document.orders)));
    } catch (const std::exception&) {
        return Give(std::string()); // too large for the module's memory, or not to be made
    }
}

// bom FILE: the bill as the table the tool prints.
const char* utw_bom_text()
{
    try {
        return Give(ItUnitechnik::Bom::BillText(ItUnitechnik::Bom::BillOfDocument(document.orders)));
    } catch (const std::exception&) {
        return Give(std::string()); // too large for the module's memory, or not to be made
    }
}

// check FILE --json, the file named PATH in the findings.
const char* utw_check_json(const char* path)
{
    try {
        const std::vector<ItUnitechnik::Tool::Check::Finding> findings =
            ItUnitechnik::Tool::Check::CheckFile(path, bytes);
        return Give(ItUnitechnik::Tool::Check::FindingsJson(findings).dump(2, ' ', false,
                                                                           nlohmann::json::error_handler_t::replace) +
                    "\n");
    } catch (const std::exception&) {
        return Give(std::string());
    }
}

// The length in bytes of the last text given out.
std::size_t utw_length()
{
    return result.size();
}

} // extern "C"
