#include "json_input.h"

#include "sub_command.h"

#include <set>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool {
namespace {

using nlohmann::json;

// Where the parser is: one frame per open object or array, with the keys an
// object has so far and the index of an array's next entry.
class Places {
public:
    bool Event(int depth, json::parse_event_t event, json& parsed)
    {
        (void)depth;
        switch (event) {
        case json::parse_event_t::object_start:
            Open(true);
            break;
        case json::parse_event_t::array_start:
            Open(false);
            break;
        case json::parse_event_t::object_end:
        case json::parse_event_t::array_end:
            frames_.pop_back();
            break;
        case json::parse_event_t::key: {
            Frame& frame = frames_.back();
            const std::string key = parsed.get<std::string>();
            if (!frame.keys.insert(key).second) {
                const std::string where = frame.path.empty() ? "the top object" : frame.path;
                throw BadInput(where + ": the key \"" + key + "\" stands twice");
            }
            frame.lastKey = key;
            break;
        }
        case json::parse_event_t::value:
            Enter();
            break;
        }
        return true;
    }

private:
    struct Frame {
        bool isObject = false;
        std::string path;
        std::set<std::string> keys;
        std::string lastKey;
        std::size_t nextIndex = 0;
    };

    // The place of the value that begins now, in the frame around it.
    std::string Enter()
    {
        if (frames_.empty()) {
            return std::string();
        }
        Frame& frame = frames_.back();
        if (frame.isObject) {
            return frame.path.empty() ? frame.lastKey : frame.path + "." + frame.lastKey;
        }
        return frame.path + "[" + std::to_string(frame.nextIndex++) + "]";
    }

    void Open(bool isObject)
    {
        Frame frame;
        frame.isObject = isObject;
        frame.path = Enter();
        frames_.push_back(std::move(frame));
    }

    std::vector<Frame> frames_;
};

} // namespace

nlohmann::json ParseJsonText(const std::string& text)
{
    Places places;
    try {
        return json::parse(
            text, [&places](int depth, json::parse_event_t event, json& parsed) {
                return places.Event(depth, event, parsed);
            },
            true, true);
    } catch (const json::parse_error& e) {
        // The parser's own account starts with its line and column.
        const std::string what = e.what();
        const std::string marker = "parse error at ";
        const std::size_t at = what.find(marker);
        if (at != std::string::npos) {
            throw BadInput(what.substr(at + marker.size()));
        }
        throw BadInput("byte " + std::to_string(e.byte) + ": " + what);
    }
}

} // namespace ItUnitechnik::Tool
