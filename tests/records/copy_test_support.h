// What the copy test fills and collects a record with, member by member,
// through the table of every record's members.
#pragma once

#include "geometry/arc.h"
#include "geometry/circle.h"
#include "geometry/geo_data.h"
#include "geometry/line_segment.h"
#include "geometry/point.h"
#include "geometry/polygon.h"
#include "unitechnik/tree/record_fields.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

// A record that no other record holds, and so the table leaves out.
namespace ItUnitechnik::Tree {

template <class V>
void Fields(V& v, Vector3d& r)
{
    v.Field("x", r.x);
    v.Field("y", r.y);
    v.Field("z", r.z);
}

} // namespace ItUnitechnik::Tree

namespace ItUnitechnik::CopyTesting {

// Gives every member a value of its own: numbers count up from 101, texts and
// characters follow the count, booleans are turned from their default, lists
// get two elements, and an outline piece gets a curve whose class follows
// the count.
class Filler {
public:
    template <class T>
    void Field(const char*, T& value)
    {
        const int n = next_++;
        if constexpr (std::is_same_v<T, bool>) {
            value = !value;
        } else if constexpr (std::is_same_v<T, wchar_t>) {
            value = static_cast<wchar_t>(L'A' + n % 26);
        } else if constexpr (std::is_same_v<T, std::wstring>) {
            value = L"t" + std::to_wstring(n);
        } else if constexpr (std::is_floating_point_v<T>) {
            value = n + 0.5;
        } else {
            value = static_cast<T>(n);
        }
    }

    template <class R>
    void Record(const char*, R& record)
    {
        Tree::Fields(*this, record);
    }

    template <class R, class MakeElement>
    void Records(const char*, std::vector<R>& records, MakeElement make)
    {
        for (int i = 0; i < 2; ++i) {
            R element = make();
            Tree::Fields(*this, element);
            records.push_back(element);
        }
    }

    template <class A>
    void FixedRecords(const char*, A& records)
    {
        for (auto& record : records) {
            Tree::Fields(*this, record);
        }
    }

    void Points(const char* name, std::vector<Point2d>& points)
    {
        Records(name, points, [] { return Point2d(); });
    }

    void Numbers(const char*, std::vector<std::int32_t>& numbers)
    {
        numbers = {next_, next_ + 1};
        next_ += 2;
    }

    void Curve(const char*, GeoData& element)
    {
        std::unique_ptr<ItUnitechnik::Curve> curve;
        switch (next_ % 4) {
        case 0:
            curve = Filled(std::make_unique<Arc>(502));
            break;
        case 1:
            curve = Filled(std::make_unique<Circle>(502));
            break;
        case 2:
            curve = Filled(std::make_unique<LineSegment>(502));
            break;
        default:
            curve = Filled(std::make_unique<Polygon>(502));
            break;
        }
        element = GeoData(element.version, element.elementKind, std::move(curve));
    }

private:
    template <class C>
    std::unique_ptr<C> Filled(std::unique_ptr<C> curve)
    {
        Tree::Fields(*this, *curve);
        return curve;
    }

    int next_ = 101;
};

// Every member as a line of its path and value, and every curve's address.
class Collector {
public:
    template <class T>
    void Field(const char* name, const T& value)
    {
        std::string text;
        if constexpr (std::is_same_v<T, std::wstring>) {
            text = std::string(value.begin(), value.end());
        } else if constexpr (std::is_same_v<T, wchar_t>) {
            text = std::to_string(static_cast<int>(value));
        } else {
            text = std::to_string(value);
        }
        lines.push_back(path_ + name + "=" + text);
    }

    template <class R>
    void Record(const char* name, R& record)
    {
        Nested(name, record);
    }

    template <class R, class MakeElement>
    void Records(const char* name, std::vector<R>& records, MakeElement)
    {
        lines.push_back(path_ + name + ".size=" + std::to_string(records.size()));
        for (std::size_t i = 0; i < records.size(); ++i) {
            Nested(std::string(name) + "[" + std::to_string(i) + "]", records[i]);
        }
    }

    template <class A>
    void FixedRecords(const char* name, A& records)
    {
        for (std::size_t i = 0; i < records.size(); ++i) {
            Nested(std::string(name) + "[" + std::to_string(i) + "]", records[i]);
        }
    }

    void Points(const char* name, std::vector<Point2d>& points)
    {
        Records(name, points, [] { return Point2d(); });
    }

    void Numbers(const char* name, std::vector<std::int32_t>& numbers)
    {
        for (std::size_t i = 0; i < numbers.size(); ++i) {
            lines.push_back(path_ + name + "[" + std::to_string(i) + "]=" + std::to_string(numbers[i]));
        }
    }

    void Curve(const char* name, GeoData& element)
    {
        curves.insert(element.curve.get());
        if (auto* arc = dynamic_cast<Arc*>(element.curve.get())) {
            Nested(std::string(name) + ":Arc", *arc);
        } else if (auto* circle = dynamic_cast<Circle*>(element.curve.get())) {
            Nested(std::string(name) + ":Circle", *circle);
        } else if (auto* line = dynamic_cast<LineSegment*>(element.curve.get())) {
            Nested(std::string(name) + ":LineSegment", *line);
        } else if (auto* polygon = dynamic_cast<Polygon*>(element.curve.get())) {
            Nested(std::string(name) + ":Polygon", *polygon);
        } else {
            lines.push_back(path_ + name + ":none");
        }
    }

    std::vector<std::string> lines;
    std::set<const void*> curves;

private:
    template <class R>
    void Nested(const std::string& name, R& record)
    {
        const std::string outer = path_;
        path_ += name + ".";
        Tree::Fields(*this, record);
        path_ = outer;
    }

    std::string path_;
};

template <class R>
Collector Collected(R& record)
{
    Collector collector;
    Tree::Fields(collector, record);
    return collector;
}

} // namespace ItUnitechnik::CopyTesting
