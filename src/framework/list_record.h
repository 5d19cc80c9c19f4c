#pragma once

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/read_idioms.h"

#include <cstdint>
#include <vector>

// The frame that the list records (contours, cutouts, mounted parts, bars,
// girders, external irons) share: the tag line, the version, the count of
// entries, the entries each ended by a line end, and "END".
namespace ItUnitechnik {

struct ListFrame {
    const char* tag;       // the record's tag, "CONTOUR_"
    int countWidth;        // the places of the count
    const char* countName; // the count as a field sink names it
};

template <class T>
bool WriteList(Archive& ar, const void* record, std::int16_t version, const ListFrame& frame, std::vector<T>& entries)
{
    const RecordScope scope(ar, record);
    ar << Tag(frame.tag);
    ar << UInt(3, version, "version");
    ar << EndLine;
    ar << UInt(frame.countWidth, static_cast<std::uint32_t>(entries.size()), frame.countName);
    ar << EndLine;
    WriteElements(ar, entries);
    ar << Tag("END");
    return Healthy(ar);
}

// The pieces of an outline (a contour, a cutout, a mounted part): their
// count ends the outline's own line, then each piece stands on a line of its
// own. An outline with no piece still ends its line; the list ends the last
// piece's.
template <class Piece>
void WritePieces(Archive& ar, std::vector<Piece>& pieces)
{
    ar << UInt(2, static_cast<std::uint32_t>(pieces.size()), "geoData");
    for (Piece& piece : pieces) {
        ar << EndLine;
        piece.Write(ar);
    }
    if (pieces.empty()) {
        ar << EndLine;
    }
}

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
