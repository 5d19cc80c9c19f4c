#include "tree/tree_json.h"

#include "platform/platform.h"
#include "text/unicode.h"
#include "tree/record_fields.h"

#include <cmath>
#include <limits>
#include <memory>
#include <set>
#include <type_traits>

namespace ItUnitechnik::Tree {

TreeError::TreeError(const std::string& path, const std::string& message)
    : std::runtime_error(path + ": " + message), path_(path)
{
}

namespace {

using ordered_json = nlohmann::ordered_json;
using json = nlohmann::json;

// Writes a record's members into one JSON object.
class JsonWriter {
public:
    explicit JsonWriter(ordered_json& out) : out_(out) {}

    template <class T>
    void Field(const char* name, const T& value)
    {
        out_[name] = Value(value);
    }

    template <class R>
    void Record(const char* name, const R& record)
    {
        out_[name] = Object(record);
    }

    template <class R, class Make>
    void Records(const char* name, const std::vector<R>& records, Make)
    {
        ordered_json list = ordered_json::array();
        for (const R& record : records) {
            list.push_back(Object(record));
        }
        out_[name] = std::move(list);
    }

    template <class A>
    void FixedRecords(const char* name, const A& records)
    {
        ordered_json list = ordered_json::array();
        for (const auto& record : records) {
            list.push_back(Object(record));
        }
        out_[name] = std::move(list);
    }

    void Points(const char* name, const std::vector<Point2d>& points)
    {
        ordered_json list = ordered_json::array();
        for (const Point2d& point : points) {
            list.push_back(Object(point));
        }
        out_[name] = std::move(list);
    }

    void Numbers(const char* name, const std::vector<int>& numbers) { out_[name] = numbers; }

    void Curve(const char* name, const GeoData& element)
    {
        ordered_json curve;
        if (const auto* arc = dynamic_cast<const Arc*>(element.curve.get())) {
            curve = Object(*arc, "Arc");
        } else if (const auto* circle = dynamic_cast<const Circle*>(element.curve.get())) {
            curve = Object(*circle, "Circle");
        } else if (const auto* line = dynamic_cast<const LineSegment*>(element.curve.get())) {
            curve = Object(*line, "LineSegment");
        } else if (const auto* polygon = dynamic_cast<const Polygon*>(element.curve.get())) {
            curve = Object(*polygon, "Polygon");
        }
        out_[name] = std::move(curve);
    }

    template <class R>
    static ordered_json Object(const R& record, const char* curveClass = nullptr)
    {
        ordered_json object = ordered_json::object();
        if (curveClass != nullptr) {
            object["class"] = curveClass;
        }
        JsonWriter writer(object);
        Fields(writer, record);
        return object;
    }

private:
    static ordered_json Value(const std::wstring& text) { return Platform::ToUtf8(text); }
    static ordered_json Value(wchar_t character) { return Platform::ToUtf8(std::wstring(1, character)); }
    static ordered_json Value(bool flag) { return flag; }
    static ordered_json Value(double value)
    {
        if (std::isnan(value)) {
            return std::signbit(value) ? "-nan" : "nan";
        }
        if (std::isinf(value)) {
            return value < 0 ? "-inf" : "inf";
        }
        return value;
    }
    template <class T>
    static ordered_json Value(T value)
    {
        static_assert(std::is_integral<T>::value, "a member is a number, a flag, a text or a character");
        return value;
    }

    ordered_json& out_;
};

// Fills a record's members from one JSON object; every key must name one.
class JsonReader {
public:
    JsonReader(const json& in, std::string path) : in_(in), path_(std::move(path))
    {
        if (!in_.is_object()) {
            throw TreeError(path_, "expected an object");
        }
    }

    // What the object holds that no member took.
    void CheckKeys() const
    {
        for (const auto& item : in_.items()) {
            if (taken_.count(item.key()) == 0) {
                throw TreeError(Path(item.key().c_str()), "no such member");
            }
        }
    }

    template <class T>
    void Field(const char* name, T& value)
    {
        if (const json* given = Take(name)) {
            Assign(*given, Path(name), value);
        }
    }

    template <class R>
    void Record(const char* name, R& record)
    {
        if (const json* given = Take(name)) {
            Fill(*given, Path(name), record);
        }
    }

    template <class R, class Make>
    void Records(const char* name, std::vector<R>& records, Make make)
    {
        if (const json* given = Take(name)) {
            const json& list = List(*given, Path(name));
            records.clear();
            for (std::size_t i = 0; i < list.size(); ++i) {
                records.push_back(make());
                Fill(list[i], Path(name) + "[" + std::to_string(i) + "]", records.back());
            }
        }
    }

    template <class A>
    void FixedRecords(const char* name, A& records)
    {
        if (const json* given = Take(name)) {
            const json& list = List(*given, Path(name));
            if (list.size() != records.size()) {
                throw TreeError(Path(name), "expected " + std::to_string(records.size()) + " entries");
            }
            for (std::size_t i = 0; i < list.size(); ++i) {
                Fill(list[i], Path(name) + "[" + std::to_string(i) + "]", records[i]);
            }
        }
    }

    void Points(const char* name, std::vector<Point2d>& points)
    {
        Records(name, points, [] { return Point2d(); });
    }

    void Numbers(const char* name, std::vector<int>& numbers)
    {
        if (const json* given = Take(name)) {
            const json& list = List(*given, Path(name));
            numbers.clear();
            for (std::size_t i = 0; i < list.size(); ++i) {
                numbers.push_back(0);
                Assign(list[i], Path(name) + "[" + std::to_string(i) + "]", numbers.back());
            }
        }
    }

    void Curve(const char* name, GeoData& element)
    {
        const json* given = Take(name);
        if (given == nullptr || given->is_null()) {
            return;
        }
        const std::string path = Path(name);
        if (!given->is_object() || !given->contains("class") || !(*given)["class"].is_string()) {
            throw TreeError(path, "expected a curve with its \"class\"");
        }
        const std::string curveClass = (*given)["class"].get<std::string>();
        json members = *given;
        members.erase("class");
        std::unique_ptr<ItUnitechnik::Curve> curve;
        if (curveClass == "Arc") {
            curve = Made<Arc>(members, path, element.version);
        } else if (curveClass == "Circle") {
            curve = Made<Circle>(members, path, element.version);
        } else if (curveClass == "LineSegment") {
            curve = Made<LineSegment>(members, path, element.version);
        } else if (curveClass == "Polygon") {
            curve = Made<Polygon>(members, path, element.version);
        } else {
            throw TreeError(path + ".class", "expected Arc, Circle, LineSegment or Polygon");
        }
        element.curve = std::move(curve);
    }

    template <class R>
    static void Fill(const json& in, const std::string& path, R& record)
    {
        JsonReader reader(in, path);
        Fields(reader, record);
        reader.CheckKeys();
    }

private:
    template <class C>
    static std::unique_ptr<C> Made(const json& members, const std::string& path, std::int32_t version)
    {
        auto curve = std::make_unique<C>(version);
        Fill(members, path, *curve);
        return curve;
    }

    const json* Take(const char* name)
    {
        taken_.insert(name);
        const auto found = in_.find(name);
        return found == in_.end() ? nullptr : &*found;
    }

    std::string Path(const char* name) const { return path_.empty() ? name : path_ + "." + name; }

    static const json& List(const json& given, const std::string& path)
    {
        if (!given.is_array()) {
            throw TreeError(path, "expected an array");
        }
        return given;
    }

    static void Assign(const json& given, const std::string& path, std::wstring& value)
    {
        if (!given.is_string()) {
            throw TreeError(path, "expected a text");
        }
        value = Tool::WideFromUtf8(given.get<std::string>());
    }

    static void Assign(const json& given, const std::string& path, wchar_t& value)
    {
        std::wstring text;
        Assign(given, path, text);
        if (text.size() != 1) {
            throw TreeError(path, "expected a text of one character");
        }
        value = text[0];
    }

    static void Assign(const json& given, const std::string& path, bool& value)
    {
        if (!given.is_boolean()) {
            throw TreeError(path, "expected true or false");
        }
        value = given.get<bool>();
    }

    static void Assign(const json& given, const std::string& path, double& value)
    {
        if (given.is_number()) {
            value = given.get<double>();
            return;
        }
        const std::string word = given.is_string() ? given.get<std::string>() : "";
        if (word == "nan" || word == "-nan") {
            value = std::copysign(std::numeric_limits<double>::quiet_NaN(), word == "nan" ? 1.0 : -1.0);
        } else if (word == "inf" || word == "-inf") {
            value = word == "inf" ? std::numeric_limits<double>::infinity() : -std::numeric_limits<double>::infinity();
        } else {
            throw TreeError(path, R"(expected a number, or "nan", "-nan", "inf" or "-inf")");
        }
    }

    template <class T>
    static void Assign(const json& given, const std::string& path, T& value)
    {
        static_assert(std::is_integral<T>::value, "a member is a number, a flag, a text or a character");
        const std::string range = std::to_string(static_cast<long long>(std::numeric_limits<T>::min())) + " to " +
                                  std::to_string(static_cast<unsigned long long>(std::numeric_limits<T>::max()));
        if (given.is_number_unsigned()) {
            const auto number = given.get<unsigned long long>();
            if (number > static_cast<unsigned long long>(std::numeric_limits<T>::max())) {
                throw TreeError(path, "expected a whole number from " + range);
            }
            value = static_cast<T>(number);
        } else if (given.is_number_integer()) {
            const auto number = given.get<long long>();
            if (number < static_cast<long long>(std::numeric_limits<T>::min()) ||
                (number > 0 && static_cast<unsigned long long>(number) >
                                   static_cast<unsigned long long>(std::numeric_limits<T>::max()))) {
                throw TreeError(path, "expected a whole number from " + range);
            }
            value = static_cast<T>(number);
        } else {
            throw TreeError(path, "expected a whole number from " + range);
        }
    }

    const json& in_;
    std::string path_;
    std::set<std::string> taken_;
};

} // namespace

nlohmann::ordered_json ToJson(const std::vector<Order>& orders)
{
    ordered_json list = ordered_json::array();
    for (const Order& order : orders) {
        list.push_back(JsonWriter::Object(order));
    }
    ordered_json document = ordered_json::object();
    document["orders"] = std::move(list);
    return document;
}

std::vector<Order> FromJson(const nlohmann::json& document)
{
    if (!document.is_object()) {
        throw TreeError("document", "expected an object with \"orders\"");
    }
    for (const auto& item : document.items()) {
        if (item.key() != "orders") {
            throw TreeError("document." + item.key(), "no such member");
        }
    }
    std::vector<Order> orders;
    const auto found = document.find("orders");
    if (found == document.end()) {
        return orders;
    }
    if (!found->is_array()) {
        throw TreeError("document.orders", "expected an array");
    }
    for (std::size_t i = 0; i < found->size(); ++i) {
        orders.emplace_back();
        JsonReader::Fill((*found)[i], "document.orders[" + std::to_string(i) + "]", orders.back());
    }
    return orders;
}

} // namespace ItUnitechnik::Tree
