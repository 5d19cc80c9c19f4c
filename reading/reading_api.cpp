// The reading library's C calls: a file read tolerantly, given back as one
// JSON text. Nothing thrown inside crosses the C boundary: a failure inside
// becomes a result with its message.
#include "itunitechnik_reading.h"

#include "bom/bill_of_materials.h"
#include "files/files.h"
#include "plant_json.h"
#include "reading/tolerant_reading.h"
#include "tree/tree_json.h"

#include <nlohmann/json.hpp>

#include <exception>
#include <new>
#include <string>

struct ItrResult {
    bool ok = false;
    std::string json;
};

namespace ItUnitechnik::Reading {

namespace {

using nlohmann::ordered_json;

ordered_json ErrorJson(std::size_t line, std::size_t column, const std::string& message)
{
    return {{"line", line}, {"column", column}, {"message", message}};
}

std::string StopText(const ReadStop& stop)
{
    std::string message = "expected " + stop.expected;
    if (!stop.record.empty()) {
        message += " in " + stop.record;
    }
    if (stop.atEnd) {
        message += ", but the file ends there";
    }
    return message;
}

ItrResult* Failed(const std::string& message)
{
    auto* result = new (std::nothrow) ItrResult;
    if (result != nullptr) {
        // Dumped by the JSON library, so the message's bytes are escaped as
        // JSON wants them.
        ordered_json out = {{"ok", false},
                            {"error", ErrorJson(0, 0, message)},
                            {"departures", ordered_json::array()},
                            {"bareLineEnds", 0}};
        try {
            result->json = out.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
        } catch (...) {
            result->json = "{\"ok\": false, \"error\": {\"line\": 0, \"column\": 0, \"message\": \"out of memory\"}}";
        }
    }
    return result;
}

ItrResult* Read(const std::string& bytes, int parts)
{
    TolerantDocument document = ReadTolerantly(bytes);
    ordered_json out = ordered_json::object();
    out["ok"] = document.Complete();
    out["error"] = document.stop ? ErrorJson(document.stop->line, document.stop->column, StopText(*document.stop))
                                 : ordered_json(nullptr);
    out["departures"] = ordered_json::array();
    for (const Departure departure : document.departures) {
        out["departures"].push_back(DepartureName(departure));
    }
    out["bareLineEnds"] = document.bareLineEnds.size();
    if ((parts & ITR_RECORDS) != 0) {
        out["document"] = Tree::ToJson(document.orders);
    }
    if ((parts & ITR_PLANT) != 0) {
        out["plant"] = PlantJson(document.orders);
    }
    if ((parts & ITR_BOM) != 0) {
        out["bom"] = Bom::BillJsonValue(Bom::BillOfDocument(document.orders));
    }
    auto* result = new ItrResult;
    result->ok = document.Complete();
    result->json = out.dump(-1, ' ', false, ordered_json::error_handler_t::replace);
    return result;
}

template <class Work>
ItrResult* Guarded(Work work)
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return Failed("out of memory");
    } catch (const std::exception& e) {
        return Failed(std::string("the reading failed: ") + e.what());
    } catch (...) {
        return Failed("the reading failed");
    }
}

} // namespace

} // namespace ItUnitechnik::Reading

extern "C" {

ITR_API ItrResult* itrReadFile(const char* pathUtf8, int parts)
{
    using namespace ItUnitechnik;
    return Reading::Guarded([&]() -> ItrResult* {
        if (pathUtf8 == nullptr) {
            return Reading::Failed("no path");
        }
        const std::optional<std::string> bytes = Tool::ReadWholeFile(pathUtf8);
        if (!bytes) {
            return Reading::Failed(std::string("cannot read \"") + pathUtf8 + "\"");
        }
        return Reading::Read(*bytes, parts);
    });
}

ITR_API ItrResult* itrReadBytes(const void* bytes, size_t size, int parts)
{
    using namespace ItUnitechnik;
    return Reading::Guarded([&]() -> ItrResult* {
        if (bytes == nullptr && size != 0) {
            return Reading::Failed("no bytes");
        }
        const std::string text = size == 0 ? std::string() : std::string(static_cast<const char*>(bytes), size);
        return Reading::Read(text, parts);
    });
}

ITR_API int itrOk(const ItrResult* result)
{
    return result != nullptr && result->ok ? 1 : 0;
}

ITR_API const char* itrJson(const ItrResult* result)
{
    return result == nullptr ? "" : result->json.c_str();
}

ITR_API void itrFree(ItrResult* result)
{
    delete result;
}

ITR_API const char* itrPlantMeanings(void)
{
    // Made once; a failure leaves an empty list rather than crossing the
    // boundary.
    static const std::string meanings = []() -> std::string {
        try {
            return ItUnitechnik::Reading::MeaningsJson().dump();
        } catch (...) {
            return "[]";
        }
    }();
    return meanings.c_str();
}

} // extern "C"
