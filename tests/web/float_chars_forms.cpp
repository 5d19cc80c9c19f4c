// Prints a fixed sequence of doubles in every form that FloatChars of
// src/framework/float_chars.h writes: shortest, shortest fixed, fixed with 2
// decimals, scientific with 5, general with 6. Built natively, it prints
// what std::to_chars writes; built by emscripten, what the WebAssembly
// build's own path writes. The test web.float_chars compares the two.
#include "framework/float_chars.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

std::uint64_t state = 88172645463325252ull;

std::uint64_t Next()
{
    state ^= state << 13;
    state ^= state >> 7;
    state ^= state << 17;
    return state;
}

// Any finite double, a number of metres in millimetres, a rounded
// coordinate, a small fraction.
double Value(int i)
{
    double value = 0;
    switch (i % 4) {
    case 0: {
        const std::uint64_t bits = Next();
        std::memcpy(&value, &bits, sizeof value);
        return std::isfinite(value) ? value : 1.5;
    }
    case 1:
        return static_cast<double>(static_cast<std::int64_t>(Next() % 200000000) - 100000000) / 1000.0;
    case 2:
        return std::round(static_cast<double>(static_cast<std::int64_t>(Next() % 2000000000)) / 7.0 * 100.0) / 100.0;
    default:
        return static_cast<double>(Next() % 100000) * 1e-7 * static_cast<double>(Next() % 7 + 1);
    }
}

void Put(const char* first, std::to_chars_result result, char after)
{
    std::fwrite(first, 1, static_cast<std::size_t>(result.ptr - first), stdout);
    std::putchar(after);
}

} // namespace

int main()
{
    char buffer[512];
    char* const last = buffer + sizeof buffer;
    for (int i = 0; i < 200000; ++i) {
        const double value = Value(i);
        Put(buffer, ItUnitechnik::FloatChars(buffer, last, value), ' ');
        if (std::fabs(value) < 1e20) {
            Put(buffer, ItUnitechnik::FloatChars(buffer, last, value, std::chars_format::fixed), ' ');
        }
        Put(buffer, ItUnitechnik::FloatChars(buffer, last, value, std::chars_format::fixed, 2), ' ');
        Put(buffer, ItUnitechnik::FloatChars(buffer, last, value, std::chars_format::scientific, 5), ' ');
        Put(buffer, ItUnitechnik::FloatChars(buffer, last, value, std::chars_format::general, 6), '\n');
    }
    return 0;
}
