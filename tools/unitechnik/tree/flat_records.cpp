#include "tree/flat_records.h"

#include "platform/platform.h"
#include "tree/record_fields.h"
#include "tree/tree_json.h"

#include <nlohmann/json.hpp>

#include "framework/float_chars.h"
#include <algorithm>

#include <charconv>
#include <type_traits>

namespace ItUnitechnik::Tree {

namespace {

std::string JsonString(const std::wstring& text)
{
    return nlohmann::json(Platform::ToUtf8(text)).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

} // namespace

std::string Joined(const std::string& prefix, const std::string& name)
{
    if (prefix.empty() || name.empty()) {
        return prefix + name;
    }
    return prefix + "." + name;
}

std::string ShownValue(const std::wstring& text)
{
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring::npos) {
        return JsonString(std::wstring());
    }
    return JsonString(text.substr(first, text.find_last_not_of(L' ') - first + 1));
}

std::string ShownValue(double value)
{
    char buffer[64];
    const auto result = FloatChars(buffer, buffer + sizeof buffer, value);
    return {buffer, result.ptr};
}

namespace {

std::string Shown(wchar_t character)
{
    return JsonString(std::wstring(1, character));
}

std::string Shown(const std::wstring& text)
{
    return ShownValue(text);
}

std::string Shown(bool flag)
{
    return flag ? "true" : "false";
}

std::string Shown(double value)
{
    return ShownValue(value);
}

template <class T>
std::string Shown(T value)
{
    static_assert(std::is_integral<T>::value, "a member is a number, a flag, a text or a character");
    if constexpr (std::is_signed<T>::value) {
        return std::to_string(static_cast<long long>(value));
    } else {
        return std::to_string(static_cast<unsigned long long>(value));
    }
}

std::string Shown(const std::vector<int>& numbers)
{
    std::string text = "[";
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        text += (i == 0 ? "" : ", ") + std::to_string(numbers[i]);
    }
    return text + "]";
}

// The curve a piece of outline owns, as its own class.
template <class Visit>
void WithCurve(const GeoData& element, Visit&& visit)
{
    if (const auto* arc = dynamic_cast<const Arc*>(element.curve.get())) {
        visit(*arc);
    } else if (const auto* circle = dynamic_cast<const Circle*>(element.curve.get())) {
        visit(*circle);
    } else if (const auto* line = dynamic_cast<const LineSegment*>(element.curve.get())) {
        visit(*line);
    } else if (const auto* polygon = dynamic_cast<const Polygon*>(element.curve.get())) {
        visit(*polygon);
    }
}

class Flattener {
public:
    Flattener(FlatRecord& record, std::string prefix, std::vector<Owner> chain)
        : record_(record), prefix_(std::move(prefix)), chain_(std::move(chain))
    {
    }

    template <class R>
    static FlatRecord Entry(std::string path, const R& record)
    {
        FlatRecord flat;
        flat.path = std::move(path);
        flat.address = &record;
        Flattener visitor(flat, "", {Owner(&record, "")});
        Fields(visitor, record);
        return flat;
    }

    template <class T>
    void Field(const char* name, const T& value)
    {
        Add(name, Shown(value));
    }

    void Numbers(const char* name, const std::vector<int>& numbers) { Add(name, Shown(numbers)); }

    template <class R>
    void Record(const char* name, const R& record)
    {
        const std::string prefix = Joined(prefix_, name);
        record_.nested.emplace_back(&record, prefix);
        std::vector<Owner> chain = chain_;
        for (Owner& owner : chain) {
            owner.second = Joined(owner.second, name);
        }
        chain.emplace_back(&record, "");
        Flattener inner(record_, prefix, std::move(chain));
        Fields(inner, record);
    }

    void Curve(const char* name, const GeoData& element)
    {
        WithCurve(element, [&](const auto& curve) { this->Record(name, curve); });
    }

    template <class R, class Make>
    void Records(const char* name, const std::vector<R>& records, Make)
    {
        List(name, records);
    }

    template <class A>
    void FixedRecords(const char* name, const A& records)
    {
        List(name, records);
    }

    void Points(const char* name, const std::vector<Point2d>& points) { List(name, points); }

private:
    void Add(const char* name, std::string value)
    {
        FlatField field;
        field.name = Joined(prefix_, name);
        field.value = std::move(value);
        for (auto owner = chain_.rbegin(); owner != chain_.rend(); ++owner) {
            field.owners.emplace_back(owner->first, Joined(owner->second, name));
        }
        record_.fields.push_back(std::move(field));
    }

    template <class S>
    void List(const char* name, const S& records)
    {
        FlatList list;
        list.name = Joined(prefix_, name);
        std::size_t index = 0;
        for (const auto& record : records) {
            list.records.push_back(Entry(record_.path + "." + list.name + "[" + std::to_string(index) + "]", record));
            ++index;
        }
        record_.lists.push_back(std::move(list));
    }

    FlatRecord& record_;
    std::string prefix_;
    std::vector<Owner> chain_;
};

// One step of a path: a member's name, and an index into it for a list.
struct Step {
    std::string name;
    std::optional<std::size_t> index;
};

std::vector<Step> Steps(const std::string& path)
{
    std::vector<Step> steps;
    std::size_t at = 0;
    while (at <= path.size()) {
        std::size_t end = path.find('.', at);
        if (end == std::string::npos) {
            end = path.size();
        }
        const std::string part = path.substr(at, end - at);
        Step step;
        const std::size_t open = part.find('[');
        step.name = part.substr(0, open);
        if (open != std::string::npos) {
            step.index = static_cast<std::size_t>(std::stoull(part.substr(open + 1)));
        }
        steps.push_back(std::move(step));
        at = end + 1;
    }
    return steps;
}

// Follows a path down the tree to one member.
class Seeker {
public:
    Seeker(const std::vector<Step>& steps, std::size_t at, std::optional<std::string>& found)
        : steps_(steps), at_(at), found_(found)
    {
    }

    template <class T>
    void Field(const char* name, const T& value)
    {
        if (Here(name) && Last() && !steps_[at_].index) {
            found_ = Shown(value);
        }
    }

    void Numbers(const char* name, const std::vector<int>& numbers)
    {
        if (Here(name) && Last() && !steps_[at_].index) {
            found_ = Shown(numbers);
        }
    }

    template <class R>
    void Record(const char* name, const R& record)
    {
        if (Here(name) && !Last() && !steps_[at_].index) {
            Seeker inner(steps_, at_ + 1, found_);
            Fields(inner, record);
        }
    }

    void Curve(const char* name, const GeoData& element)
    {
        WithCurve(element, [&](const auto& curve) { this->Record(name, curve); });
    }

    template <class R, class Make>
    void Records(const char* name, const std::vector<R>& records, Make)
    {
        List(name, records);
    }

    template <class A>
    void FixedRecords(const char* name, const A& records)
    {
        List(name, records);
    }

    void Points(const char* name, const std::vector<Point2d>& points) { List(name, points); }

    template <class S>
    void List(const char* name, const S& records)
    {
        if (!Here(name)) {
            return;
        }
        const std::optional<std::size_t>& index = steps_[at_].index;
        if (!index) {
            if (Last()) {
                found_ = std::to_string(records.size());
            }
            return;
        }
        if (*index < records.size() && !Last()) {
            Seeker inner(steps_, at_ + 1, found_);
            Fields(inner, records[*index]);
        }
    }

private:
    bool Here(const char* name) const { return at_ < steps_.size() && steps_[at_].name == name; }
    bool Last() const { return at_ + 1 == steps_.size(); }

    const std::vector<Step>& steps_;
    std::size_t at_;
    std::optional<std::string>& found_;
};

} // namespace

FlatList Flatten(const std::vector<Order>& orders)
{
    FlatList list;
    list.name = "orders";
    for (std::size_t i = 0; i < orders.size(); ++i) {
        list.records.push_back(Flattener::Entry("orders[" + std::to_string(i) + "]", orders[i]));
    }
    return list;
}

RecordIndex::RecordIndex(const FlatList& orders)
{
    Add(orders);
    std::stable_sort(entries_.begin(), entries_.end(),
                     [](const auto& a, const auto& b) { return std::less<>()(a.first, b.first); });
}

void RecordIndex::Add(const FlatList& list)
{
    for (const FlatRecord& record : list.records) {
        entries_.emplace_back(record.address, Where{record.path, ""});
        for (const Owner& nested : record.nested) {
            entries_.emplace_back(nested.first, Where{record.path, nested.second});
        }
        for (const FlatList& inner : record.lists) {
            Add(inner);
        }
    }
}

std::optional<RecordIndex::Where> RecordIndex::Find(const void* record) const
{
    const auto found = std::lower_bound(
        entries_.begin(), entries_.end(), record,
        [](const std::pair<const void*, Where>& entry, const void* key) { return std::less<>()(entry.first, key); });
    if (found == entries_.end() || found->first != record) {
        return std::nullopt;
    }
    return found->second;
}

std::optional<std::string> ValueAt(const std::vector<Order>& orders, const std::string& path, const std::string& name)
{
    const std::vector<Step> steps = Steps(path + "." + name);
    if (steps.size() < 2 || steps[0].name != "orders" || !steps[0].index || *steps[0].index >= orders.size()) {
        return std::nullopt;
    }
    std::optional<std::string> found;
    Seeker seeker(steps, 1, found);
    Fields(seeker, orders[*steps[0].index]);
    return found;
}

} // namespace ItUnitechnik::Tree
