#include "generator/random_values.h"

#include <cstdio>

namespace ItUnitechnik::Testing::Generator {
namespace {

void AppendUtf8(std::string& out, unsigned c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

std::string TwoDigits(std::int64_t value)
{
    char text[8];
    std::snprintf(text, sizeof text, "%02d", static_cast<int>(value));
    return text;
}

} // namespace

std::string Text(Random& random, int longest)
{
    std::string text;
    const std::int64_t length = random.Between(0, longest);
    for (std::int64_t i = 0; i < length; ++i) {
        AppendUtf8(text,
                   static_cast<unsigned>(random.Chance(85) ? random.Between(0x20, 0x7E) : random.Between(0xA0, 0xFF)));
    }
    return text;
}

std::string Date(Random& random)
{
    const std::string separator = random.Chance(80) ? "." : random.Pick(std::vector<std::string>{"/", "-", " "});
    return TwoDigits(random.Between(1, 31)) + separator + TwoDigits(random.Between(1, 12)) + separator +
           std::to_string(random.Between(1900, 2199));
}

Json Integers(Random& random, std::size_t count, Range typical)
{
    Json values = Json::array();
    for (std::size_t i = 0; i < count; ++i) {
        values.push_back(random.Value(typical, kInt32));
    }
    return values;
}

void Count(Random& random, Json& holder, const char* key, std::int64_t units)
{
    const std::int64_t roll = random.Between(0, 99);
    if (roll < 40) {
        holder[key] = units;
    } else if (roll < 70) {
        return;
    } else if (roll < 85) {
        holder[key] = units + random.Between(1, 5);
    } else {
        holder[key] = units > 0 ? random.Between(0, units - 1) : 0;
    }
}

} // namespace ItUnitechnik::Testing::Generator
