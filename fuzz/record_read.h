#pragma once

#include "framework/archive.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>

// One record's Read over an Archive on the fuzzer's bytes. The first byte
// picks the format version the record is made with, as its parent would hand
// it down; the rest is the text, one character per byte as a file has it.
// Whatever was read then writes itself again, so the writer meets every value
// a file can put into a record.
namespace ItUnitechnik::Fuzzing {

inline std::int16_t VersionFrom(std::uint8_t selector)
{
    // The versions at which some layout changes, and the ones around them.
    static const std::int16_t versions[] = {0, 5, 499, 500, 501, 502, 503, 599, 600, 601, -1, 32767};
    return versions[selector % (sizeof versions / sizeof versions[0])];
}

inline std::wstring TextOf(const std::uint8_t* data, std::size_t size)
{
    std::wstring text;
    text.reserve(size);
    for (std::size_t i = 0; i < size; ++i) {
        text += static_cast<wchar_t>(data[i]);
    }
    return text;
}

template <class Make>
int ReadRecord(const std::uint8_t* data, std::size_t size, Make make)
{
    if (size == 0) {
        return 0;
    }
    auto record = make(VersionFrom(data[0]));
    std::wstringbuf input(TextOf(data + 1, size - 1));
    Archive in(&input);
    record.Read(in);

    std::wstringbuf output;
    Archive out(&output);
    record.Write(out);
    return 0;
}

} // namespace ItUnitechnik::Fuzzing

namespace ItUnitechnik::Fuzzing {

// A record whose version is a member the parent sets.
template <class Record>
Record WithVersion(Record record, std::int16_t version)
{
    record.version = version;
    return record;
}

} // namespace ItUnitechnik::Fuzzing
