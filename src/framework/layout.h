#pragma once

#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <vector>

// A record's lines are written down once, as a function template
//
//     template <class IO> void Layout(IO& io, Record& record)
//
// in file order, one call a field, in the words of the field forms. The same
// description runs in two directions: on a LayoutWriter (the record's Write,
// over an Archive) each word puts its field; on the tolerant reading's loader
// each word takes the field back into the member. Conditions on a version or
// a flag read the member, which the writer holds and the loader has just
// read.
//
// The words an IO has:
//   UInt(w, member, name)  SInt(w, member, name)  Hex(w, member, name)
//   Real(i, d, member, name)  Char(member, name)
//   Text(w, member, name)  RText(w, member, [adjust,] name)
//   ZText(w, member, [adjust,] name)  ZTextWhole(w, member, name)
//       a text form may end with `Token`: the records' own Read takes that
//       field as a token, so a blank inside it is worth noting when read
//   Blank()  Blanks(n)  EndLine()  Tag(text)  Literal(text)  Constant(c)
//   Record(child)              a record of its own, in its own layout
//   Count(w, entries, name)    the count of a list; gives the count written
//                              or read, for one of the runs below
//   Lines(n, entries[, make])  each entry, then a line end
//   OwnLines(n, entries[, make])  each entry behind a line end; with none
//                              the line is ended all the same
//   Run(n, entries[, make])    each entry behind a blank, on the same line
//   Each(n, entries[, make])   each entry as it stands
//   Row(array)                 a fixed row of records, a blank between them
//   Tagged(tag, entries)       each entry, while the next line is its tag
//   TaggedLines(tag, entries)  the same, each entry then a line end
//   Present(flag, tag)         whether an optional record follows: the flag
//                              when writing; when reading, whether the next
//                              line is its tag (a `bool&` flag is set so)
//   LineGoesOn(condition)      whether optional fields follow on the line:
//                              the condition when writing; when reading,
//                              whether the line has not ended
// ListLayout below frames a list record in these words.
// `make()` gives a fresh entry where the entries' type has no default.
// Member names are the record's own ("designation", "position.x"): a field
// sink reports under them, and the tool's field table is checked by them.
namespace ItUnitechnik {

// What a text form does to the adjustment: keep the one the field before left
// in force, or set it.
enum class Adjust { keep, left, right };

// A member written in the width of another integer type, and read in it:
// `As<std::int16_t>(matKind)` puts the low 16 bits of a 32-bit member.
template <class T, class Member>
struct AsType {
    Member& member;
};
template <class T, class Member>
AsType<T, Member> As(Member& member)
{
    return {member};
}

// A coordinate of the old text forms, which have no room for a sign: a
// negative value is written as 0; the member keeps its value.
struct NotBelowZero {
    std::int32_t& member;
};

// Marks a text the records' own Read takes as a token.
struct TokenMark {};
inline constexpr TokenMark Token{};

// A list record (contours, cutouts, mounted parts, bars, girders, external
// irons): its tag, its version, the count of its entries in `countWidth`
// places (a number, or what a function of the version gives), each entry on
// its lines and ended by a line end, and "END".
template <class IO, class T, class Width, class... Make>
void ListLayout(IO& io, const char* tag, Width countWidth, std::int16_t& version, std::vector<T>& entries,
                const char* name, Make... make)
{
    io.Tag(tag);
    io.UInt(3, version, "version");
    io.EndLine();
    int width = 0;
    if constexpr (std::is_invocable<Width, std::int16_t>::value) {
        width = countWidth(version);
    } else {
        width = countWidth;
    }
    const std::size_t count = io.Count(width, entries, name);
    io.EndLine();
    io.Lines(count, entries, make...);
    io.Tag("END");
}

} // namespace ItUnitechnik
