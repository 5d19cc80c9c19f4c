#include "input/json_input.h"

#include "sub_command.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace ItUnitechnik::Tool {
namespace {

using nlohmann::json;

// "[json.exception.out_of_range.406] number overflow ..." without the id.
std::string WithoutId(const std::string& what)
{
    const std::size_t end = what.find("] ");
    return what.rfind("[json.exception.", 0) == 0 && end != std::string::npos ? what.substr(end + 2) : what;
}

// Where the parser is: one frame per open object or array, with the keys an
// object has so far and the index of an array's next entry. A pass of its
// own, ahead of building the value: nlohmann's parser with a callback goes
// through an array again at the end of each object in it. The place of a
// frame is put together only for a message, so that deep nesting costs no
// more than the text it stands in.
class DoubledKeys final : public json::json_sax_t {
public:
    bool null() override { return Value(); }
    bool boolean(bool) override { return Value(); }
    bool number_integer(number_integer_t) override { return Value(); }
    bool number_unsigned(number_unsigned_t) override { return Value(); }
    bool number_float(number_float_t, const string_t&) override { return Value(); }
    bool string(string_t&) override { return Value(); }
    bool binary(binary_t&) override { return Value(); }
    bool start_object(std::size_t) override { return Open(true); }
    bool start_array(std::size_t) override { return Open(false); }
    bool end_object() override { return Close(); }
    bool end_array() override { return Close(); }

    bool key(string_t& key) override
    {
        Frame& frame = frames_.back();
        if (!frame.keys.insert(key).second) {
            const std::string where = frames_.size() == 1 ? "the top object" : PlaceOfInnermost();
            throw BadInput(where + ": the key \"" + key + "\" stands twice");
        }
        frame.lastKey = key;
        return true;
    }

    explicit DoubledKeys(const std::string& text) : text_(text) {}

    // The parse that builds the value tells a syntax error with its place. A
    // number beyond a double is no syntax error to it, and its account has no
    // place: it is told here, with the line and column of the number's end.
    bool parse_error(std::size_t position, const std::string&, const nlohmann::detail::exception& e) override
    {
        if (dynamic_cast<const json::out_of_range*>(&e) != nullptr) {
            throw BadInput(LineAndColumn(position) + ": " + WithoutId(e.what()));
        }
        return false;
    }

private:
    struct Frame {
        bool isObject = false;
        std::set<std::string> keys;
        std::string lastKey;
        std::size_t nextIndex = 0;
    };

    bool Value()
    {
        if (!frames_.empty() && !frames_.back().isObject) {
            ++frames_.back().nextIndex;
        }
        return true;
    }

    bool Open(bool isObject)
    {
        if (frames_.size() == kMostNesting) {
            throw BadInput("arrays and objects nest deeper than " + std::to_string(kMostNesting));
        }
        if (!frames_.empty() && !frames_.back().isObject) {
            ++frames_.back().nextIndex;
        }
        Frame frame;
        frame.isObject = isObject;
        frames_.push_back(std::move(frame));
        return true;
    }

    // "calls[2].block": the key or index by which each frame holds the next.
    std::string PlaceOfInnermost() const
    {
        std::string place;
        for (std::size_t i = 0; i + 1 < frames_.size(); ++i) {
            const Frame& outer = frames_[i];
            if (outer.isObject) {
                place += place.empty() ? outer.lastKey : "." + outer.lastKey;
            } else {
                place += "[" + std::to_string(outer.nextIndex - 1) + "]";
            }
        }
        return place;
    }

    bool Close()
    {
        frames_.pop_back();
        return true;
    }

    // As the parser counts them: from 1, a column the characters of its line
    // read so far.
    std::string LineAndColumn(std::size_t position) const
    {
        const std::size_t end = std::min(position, text_.size());
        std::size_t line = 1;
        std::size_t lineStart = 0;
        for (std::size_t i = 0; i < end; ++i) {
            if (text_[i] == '\n') {
                ++line;
                lineStart = i + 1;
            }
        }
        return "line " + std::to_string(line) + ", column " + std::to_string(end - lineStart);
    }

    const std::string& text_;
    std::vector<Frame> frames_;
};

} // namespace

nlohmann::json ParseJsonText(const std::string& text)
{
    try {
        DoubledKeys doubled(text);
        json::sax_parse(text, &doubled, json::input_format_t::json, true, true);
        return json::parse(text, nullptr, true, true);
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
