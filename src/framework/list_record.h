#pragma once

#include "framework/archive.h"
#include "framework/read_idioms.h"

#include <cstdint>
#include <vector>

// The read side of the list records (contours, cutouts, mounted parts, bars,
// girders, external irons): the tag line, the version, the count of entries,
// the entries each ended by a line end, and "END". Their layouts write them.
namespace ItUnitechnik {

// What a wrong end tag does: as any wrong tag, it spoils the rest of the
// Archive; or, for the contours alone, it fails only the list.
enum class WrongEnd {
    spoilsArchive,
    failsList,
};

// The list read: the tag must stand first, then the version (which `make`
// may take for each fresh entry), the count, the entries as ReadElements
// keeps them, and "END".
template <class T, class Make>
bool ReadList(Archive& ar, const wchar_t* tag, std::int16_t& version, Make make, std::vector<T>& entries,
              WrongEnd wrongEnd = WrongEnd::spoilsArchive)
{
    if (!ExpectToken(ar, tag)) {
        return false;
    }
    ar >> version;
    std::int32_t count = 0;
    ar >> count;
    ReadElements(ar, count, make, entries);
    const bool ended = wrongEnd == WrongEnd::spoilsArchive ? ExpectToken(ar, L"END") : Matches(ReadToken(ar), L"END");
    return ended && Healthy(ar);
}

} // namespace ItUnitechnik
