#include "convert/format_version.h"

#include "tree/record_fields.h"

#include <cstring>
#include <string>
#include <type_traits>

namespace ItUnitechnik::Tool::Convert {
namespace {

// Sets every member named "version", whatever its width, as startOrder casts
// the host's number into it.
class VersionSetter {
public:
    explicit VersionSetter(std::uint16_t version) : version_(version) {}

    template <class T>
    void Field(const char* name, T& value)
    {
        if constexpr (std::is_integral<T>::value && !std::is_same<T, bool>::value && !std::is_same<T, wchar_t>::value) {
            if (std::strcmp(name, "version") == 0) {
                value = static_cast<T>(static_cast<std::int16_t>(version_));
            }
        } else {
            (void)name;
            (void)value;
        }
    }

    template <class R>
    void Record(const char*, R& record)
    {
        Tree::Fields(*this, record);
    }

    template <class R, class Make>
    void Records(const char*, std::vector<R>& records, Make)
    {
        for (R& record : records) {
            Tree::Fields(*this, record);
        }
    }

    template <class A>
    void FixedRecords(const char*, A& records)
    {
        for (auto& record : records) {
            Tree::Fields(*this, record);
        }
    }

    void Points(const char*, std::vector<Point2d>&) {}
    void Numbers(const char*, std::vector<int>&) {}

    void Curve(const char*, GeoData& element)
    {
        if (element.curve != nullptr) {
            element.curve->version = static_cast<std::int16_t>(version_);
        }
    }

private:
    std::uint16_t version_;
};

} // namespace

void SetFormatVersion(std::vector<Order>& orders, std::uint16_t version)
{
    const auto target = static_cast<std::int16_t>(version);
    VersionSetter setter(version);
    for (Order& order : orders) {
        for (ElementPart& element : order.elementParts) {
            // From 600 on the element's number stands in the file as text:
            // startOrder sets both from one number, a file below 600 holds
            // only the number.
            if (element.version < 600 && target >= 600) {
                element.elementNumberText = std::to_wstring(element.elementNumber);
            }
        }
        Tree::Fields(setter, order);
    }
}

} // namespace ItUnitechnik::Tool::Convert
