#pragma once

#include <cstddef>
#include <streambuf>

namespace ItUnitechnik {

// A wide stream buffer whose put area the field forms may fill themselves:
// a field that fits in the room left is stored with no call per character.
// A buffer of the library derives from it; an Archive over one tells the
// forms so.
class FieldBuffer : public std::basic_streambuf<wchar_t> {
public:
    // The put position when at least `count` characters fit behind it, else
    // null: the field then goes through sputc, which makes room.
    wchar_t* Room(std::size_t count) { return static_cast<std::size_t>(epptr() - pptr()) >= count ? pptr() : nullptr; }
    // Takes the `count` characters stored at Room as put.
    void Advance(std::size_t count) { pbump(static_cast<int>(count)); }
};

} // namespace ItUnitechnik
