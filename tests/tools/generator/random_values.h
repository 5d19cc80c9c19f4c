#pragma once

#include <nlohmann/json.hpp>

#include <cstdint>
#include <random>
#include <string>
#include <utility>
#include <vector>

// The random values of the generated call scripts (script_generator.cpp):
// numbers in the ranges of the exports' C types, texts, dates, lists of
// integers and the counts of lists.
namespace ItUnitechnik::Testing::Generator {

using Json = nlohmann::ordered_json;

struct Range {
    std::int64_t least;
    std::int64_t most;
};

// The C types of the exports' integers.
constexpr Range kInt32{-2147483647LL - 1, 2147483647LL};
constexpr Range kInt16{-32768, 32767};
constexpr Range kUInt16{0, 65535};
constexpr Range kUInt8{0, 255};
// The bar's bending kind is the character '0' plus its code: a code above
// 207 makes a character above U+00FF, which ends the file where it stands.
constexpr Range kWholeFileBendingCode{0, 207};

// The standard's Mersenne twister gives the same numbers everywhere; the
// mapping to ranges is done here, since the standard's distributions are not
// the same on every library.
class Random {
public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    std::int64_t Between(std::int64_t least, std::int64_t most)
    {
        const std::uint64_t span = static_cast<std::uint64_t>(most - least) + 1;
        return least + static_cast<std::int64_t>(engine_() % span);
    }

    bool Chance(int percent) { return Between(0, 99) < percent; }

    // Mostly a value of a real element, now and then one at the ends of the
    // C type or anywhere in it.
    std::int64_t Value(Range typical, Range type)
    {
        const std::int64_t roll = Between(0, 99);
        if (roll < 90) {
            return Between(typical.least, typical.most);
        }
        if (roll < 95) {
            return Chance(50) ? type.least : type.most;
        }
        return Between(type.least, type.most);
    }

    // A decimal number with this many places.
    double Decimal(double least, double most, int places)
    {
        double scale = 1;
        for (int i = 0; i < places; ++i) {
            scale *= 10;
        }
        const auto low = static_cast<std::int64_t>(least * scale);
        const auto high = static_cast<std::int64_t>(most * scale);
        return static_cast<double>(Between(low, high)) / scale;
    }

    template <class T>
    const T& Pick(const std::vector<T>& values)
    {
        return values[static_cast<std::size_t>(Between(0, static_cast<std::int64_t>(values.size()) - 1))];
    }

    template <class T>
    void Shuffle(std::vector<T>& values)
    {
        for (std::size_t i = values.size(); i > 1; --i) {
            std::swap(values[i - 1], values[static_cast<std::size_t>(Between(0, static_cast<std::int64_t>(i) - 1))]);
        }
    }

private:
    std::mt19937_64 engine_;
};

// Printable characters, now and then one of Latin-1 above U+00A0.
std::string Text(Random& random, int longest);

// dd.mm.yyyy, now and then with other separators, which are not looked at.
std::string Date(Random& random);

Json Integers(Random& random, std::size_t count, Range typical);

// A count for a list of `units`: given as it is, left out, larger than the
// list (the tool pads it) or smaller.
void Count(Random& random, Json& holder, const char* key, std::int64_t units);

} // namespace ItUnitechnik::Testing::Generator
