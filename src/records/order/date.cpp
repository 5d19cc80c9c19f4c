#include "records/order/date.h"

#include "framework/archive.h"
#include "framework/read_idioms.h"

#include <climits>
#include <locale>
#include <sstream>
#include <stdexcept>

namespace ItUnitechnik {
namespace {

std::wstring Part(const std::wstring& text, std::size_t position, std::size_t count)
{
    if (position > text.size()) {
        throw std::out_of_range("invalid string position");
    }
    return text.substr(position, count);
}

bool IsSpace(wchar_t c)
{
    return c == L' ' || c == L'\t' || c == L'\n' || c == L'\v' || c == L'\f' || c == L'\r';
}

// Text to integer in base 10 as the standard conversion does it: white space
// and a sign may stand in front, digits as far as they go, the rest ignored.
int ToInteger(const std::wstring& text)
{
    std::size_t i = 0;
    while (i < text.size() && IsSpace(text[i])) {
        ++i;
    }
    bool negative = false;
    if (i < text.size() && (text[i] == L'+' || text[i] == L'-')) {
        negative = text[i] == L'-';
        ++i;
    }
    if (i >= text.size() || text[i] < L'0' || text[i] > L'9') {
        throw std::invalid_argument("invalid stoi argument");
    }
    long long value = 0;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
        value = value * 10 + (text[i] - L'0');
        if (value > static_cast<long long>(INT_MAX) + 1) {
            throw std::out_of_range("stoi argument out of range");
        }
    }
    value = negative ? -value : value;
    if (value > INT_MAX || value < INT_MIN) {
        throw std::out_of_range("stoi argument out of range");
    }
    return static_cast<int>(value);
}

} // namespace

Date::Date(const std::wstring& text, std::int16_t dateVersion) : version(dateVersion)
{
    year = static_cast<std::int16_t>(ToInteger(Part(text, 6, 4)));
    month = static_cast<std::int16_t>(ToInteger(Part(text, 3, 2)));
    day = static_cast<std::int16_t>(ToInteger(Part(text, 0, 2)));
}

bool Date::Read(Archive& ar)
{
    std::wstring text;
    GetText(ar, 10, text);
    std::wistringstream inner(text);
    inner.imbue(std::locale::classic());
    inner >> day;
    SkipChar(inner);
    inner >> month;
    SkipChar(inner);
    inner >> year;
    return Healthy(ar);
}

} // namespace ItUnitechnik
