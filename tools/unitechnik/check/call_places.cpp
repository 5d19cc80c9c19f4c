#include "check/call_places.h"

#include <nlohmann/json.hpp>

#include <cstddef>

namespace ItUnitechnik::Tool::Check {
namespace {

// A cursor over JSON text with comments that knows its line and column.
class Scanner {
public:
    explicit Scanner(const std::string& text) : text_(text)
    {
        // A byte order mark is no character of the script.
        if (text_.compare(0, 3, "\xEF\xBB\xBF") == 0) {
            at_ = 3;
        }
    }

    bool AtEnd() const { return at_ >= text_.size(); }
    char Peek() const { return AtEnd() ? '\0' : text_[at_]; }
    Place Here() const { return Place{line_, column_}; }

    void Take()
    {
        const auto byte = static_cast<unsigned char>(text_[at_]);
        ++at_;
        if (byte == '\n') {
            ++line_;
            column_ = 1;
        } else if ((byte & 0xC0) != 0x80) {
            // A character counts once: by its first byte, not by the bytes
            // that continue it.
            ++column_;
        }
    }

    // White space and comments.
    void Skip()
    {
        for (;;) {
            const char c = Peek();
            if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
                Take();
            } else if (c == '/' && at_ + 1 < text_.size() && text_[at_ + 1] == '/') {
                while (!AtEnd() && Peek() != '\n') {
                    Take();
                }
            } else if (c == '/' && at_ + 1 < text_.size() && text_[at_ + 1] == '*') {
                Take();
                Take();
                while (!AtEnd() && !(Peek() == '*' && at_ + 1 < text_.size() && text_[at_ + 1] == '/')) {
                    Take();
                }
                if (!AtEnd()) {
                    Take();
                    Take();
                }
            } else {
                return;
            }
        }
    }

    // A string, its quotes included; its value as the parser reads it.
    std::string String()
    {
        const std::size_t first = at_;
        Take();
        while (!AtEnd() && Peek() != '"') {
            if (Peek() == '\\') {
                Take();
            }
            if (!AtEnd()) {
                Take();
            }
        }
        if (!AtEnd()) {
            Take();
        }
        try {
            return nlohmann::json::parse(text_.substr(first, at_ - first)).get<std::string>();
        } catch (const nlohmann::json::exception&) {
            return {};
        }
    }

    // Any value, with what it holds.
    void Value()
    {
        Skip();
        const char c = Peek();
        if (c == '"') {
            String();
        } else if (c == '{' || c == '[') {
            const char close = c == '{' ? '}' : ']';
            Take();
            Skip();
            while (!AtEnd() && Peek() != close) {
                if (c == '{') {
                    String();
                    Skip();
                    if (Peek() == ':') {
                        Take();
                    }
                }
                Value();
                Skip();
                if (Peek() == ',') {
                    Take();
                    Skip();
                } else if (Peek() != close) {
                    return;
                }
            }
            if (!AtEnd()) {
                Take();
            }
        } else {
            // A number, true, false or null.
            while (!AtEnd() && Peek() != ',' && Peek() != '}' && Peek() != ']' && Peek() != ' ' && Peek() != '\t' &&
                   Peek() != '\r' && Peek() != '\n' && Peek() != '/') {
                Take();
            }
        }
    }

private:
    const std::string& text_;
    std::size_t at_ = 0;
    std::size_t line_ = 1;
    std::size_t column_ = 1;
};

} // namespace

std::vector<Place> CallPlaces(const std::string& text)
{
    std::vector<Place> places;
    Scanner in(text);
    in.Skip();
    if (in.Peek() != '{') {
        return places;
    }
    in.Take();
    in.Skip();
    while (!in.AtEnd() && in.Peek() == '"') {
        const std::string key = in.String();
        in.Skip();
        if (in.Peek() != ':') {
            return places;
        }
        in.Take();
        in.Skip();
        if (key == "calls" && in.Peek() == '[') {
            in.Take();
            in.Skip();
            while (!in.AtEnd() && in.Peek() != ']') {
                places.push_back(in.Here());
                in.Value();
                in.Skip();
                if (in.Peek() == ',') {
                    in.Take();
                    in.Skip();
                } else {
                    break;
                }
            }
            return places;
        }
        in.Value();
        in.Skip();
        if (in.Peek() != ',') {
            return places;
        }
        in.Take();
        in.Skip();
    }
    return places;
}

} // namespace ItUnitechnik::Tool::Check
