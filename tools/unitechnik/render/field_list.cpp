#include "render/field_list.h"

#include "plant/plant_text.h"
#include "tree/record_fields.h"

#include "framework/float_chars.h"

#include <charconv>
#include <type_traits>

namespace ItUnitechnik::Drawing {

namespace {

std::string Shortest(double value)
{
    char buffer[64];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, value);
    return {buffer, result.ptr};
}

// Collects name and value of every member, the nested ones by their path.
class Flattener {
public:
    Flattener(FieldList& out, std::string prefix) : out_(out), prefix_(std::move(prefix)) {}

    template <class T>
    void Field(const char* name, const T& value)
    {
        out_.emplace_back(prefix_ + name, Value(value));
    }

    template <class R>
    void Record(const char* name, const R& record)
    {
        Flattener nested(out_, prefix_ + name + ".");
        Tree::Fields(nested, record);
    }

    template <class R, class Make>
    void Records(const char* name, const std::vector<R>& records, Make)
    {
        if (records.empty()) {
            out_.emplace_back(prefix_ + name, "none");
        }
        for (std::size_t i = 0; i < records.size(); ++i) {
            Flattener nested(out_, prefix_ + name + "[" + std::to_string(i) + "].");
            Tree::Fields(nested, records[i]);
        }
    }

    // A mat's bars and girders are drawn, and listed, on their own.
    template <class Make>
    void Records(const char* name, const std::vector<Rodstock>& records, Make)
    {
        out_.emplace_back(prefix_ + name, std::to_string(records.size()) + (records.size() == 1 ? " bar" : " bars"));
    }

    template <class Make>
    void Records(const char* name, const std::vector<BracedGirder>& records, Make)
    {
        out_.emplace_back(prefix_ + name,
                          std::to_string(records.size()) + (records.size() == 1 ? " girder" : " girders"));
    }

    template <class A>
    void FixedRecords(const char* name, const A& records)
    {
        for (std::size_t i = 0; i < records.size(); ++i) {
            Flattener nested(out_, prefix_ + name + "[" + std::to_string(i) + "].");
            Tree::Fields(nested, records[i]);
        }
    }

    void Points(const char* name, const std::vector<Point2d>& points)
    {
        std::string text;
        for (const Point2d& point : points) {
            text += (text.empty() ? "(" : " (") + std::to_string(point.x) + ", " + std::to_string(point.y) + ")";
        }
        out_.emplace_back(prefix_ + name, text.empty() ? "none" : text);
    }

    void Numbers(const char* name, const std::vector<int>& numbers)
    {
        std::string text;
        for (const int number : numbers) {
            text += (text.empty() ? "" : " ") + std::to_string(number);
        }
        out_.emplace_back(prefix_ + name, text.empty() ? "none" : text);
    }

    void Curve(const char* name, const GeoData& element)
    {
        if (const auto* arc = dynamic_cast<const Arc*>(element.curve.get())) {
            Curved(name, "Arc", *arc);
        } else if (const auto* circle = dynamic_cast<const Circle*>(element.curve.get())) {
            Curved(name, "Circle", *circle);
        } else if (const auto* line = dynamic_cast<const LineSegment*>(element.curve.get())) {
            Curved(name, "LineSegment", *line);
        } else if (const auto* polygon = dynamic_cast<const Polygon*>(element.curve.get())) {
            Curved(name, "Polygon", *polygon);
        } else {
            out_.emplace_back(prefix_ + name, "none");
        }
    }

private:
    template <class C>
    void Curved(const char* name, const char* curveClass, const C& curve)
    {
        out_.emplace_back(prefix_ + name, curveClass);
        Record(name, curve);
    }

    static std::string Value(const std::wstring& text) { return Plant::Trimmed(text); }
    static std::string Value(wchar_t character) { return Plant::Trimmed(std::wstring(1, character)); }
    static std::string Value(bool flag) { return flag ? "true" : "false"; }
    static std::string Value(double value) { return Shortest(value); }
    template <class T>
    static std::string Value(T value)
    {
        static_assert(std::is_integral<T>::value, "a member is a number, a flag, a text or a character");
        return std::to_string(value);
    }

    FieldList& out_;
    std::string prefix_;
};

template <class R>
FieldList Flattened(const R& record)
{
    FieldList fields;
    Flattener flattener(fields, "");
    Tree::Fields(flattener, record);
    return fields;
}

} // namespace

FieldList FieldsOf(const Contour& record)
{
    return Flattened(record);
}
FieldList FieldsOf(const Cutout& record)
{
    return Flattened(record);
}
FieldList FieldsOf(const MountingPart& record)
{
    return Flattened(record);
}
FieldList FieldsOf(const Rodstock& record)
{
    return Flattened(record);
}
FieldList FieldsOf(const BracedGirder& record)
{
    return Flattened(record);
}
FieldList FieldsOf(const Steelmat& record)
{
    return Flattened(record);
}
FieldList FieldsOf(const ExternalIron& record)
{
    return Flattened(record);
}

std::string FieldLines(const FieldList& fields)
{
    std::string text;
    for (const auto& [name, value] : fields) {
        text += name;
        text += ": ";
        text += value;
        text += '\n';
    }
    return text;
}

} // namespace ItUnitechnik::Drawing
