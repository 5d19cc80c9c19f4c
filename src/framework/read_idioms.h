#pragma once

#include <istream>
#include <string>

// The idioms of the read side. A field that cannot be parsed fails the stream,
// and every later extraction then does nothing: no Read needs code of its own
// for that, it runs to its end and its closing test returns false.
namespace ItUnitechnik {

// At most `width` characters of the present line, stopping before a line feed,
// blanks kept; no character at all fails the stream.
void GetText(std::wistream& in, int width, std::wstring& into);
// One character, whatever it is, dropped.
void SkipChar(std::wistream& in);
// Up to and including the next line feed, dropped.
void SkipLine(std::wistream& in);
// The rest of the present line; cut at its last carriage return, if any.
std::wstring ReadLine(std::wistream& in);
// The rest of the present line as it stands, carriage return and all.
std::wstring ReadRestOfLine(std::wistream& in);
// White space skipped, then the characters up to the next white space.
std::wstring ReadToken(std::wistream& in);
void SetSkipWs(std::wistream& in);
void ClearSkipWs(std::wistream& in);

// A tag matches when the length is equal and every character is equal.
bool Matches(const std::wstring& text, const wchar_t* tag);

// A flag of one character, white space skipped before it: set unless it is
// '0'. A stream that has failed gives a flag that is not set.
bool ReadFlag(std::wistream& in);

// Removes blanks, tabs and line feeds from both ends, in place. A text whose
// last significant character stands at index 0 becomes empty: `7` and `7  `
// trim to nothing. The order record relies on exactly that.
void Trim(std::wstring& text);

} // namespace ItUnitechnik

namespace ItUnitechnik {

// Wide text to integer as the C runtime's _wtoi does it: white space and a
// sign in front, digits as far as they go, 0 when there are none; a value
// beyond 32 bits gives the nearest 32-bit limit.
int WideToInt(const std::wstring& text);

} // namespace ItUnitechnik

#include "framework/archive.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace ItUnitechnik {

// A record's tag where the reader expects it: the next token, or the rest of
// the present line, must match. When it does not, the Archive's `valid` is
// cleared and the result is false; a wrong tag spoils the rest of the read.
bool ExpectToken(Archive& ar, const wchar_t* tag);
bool ExpectLine(Archive& ar, const wchar_t* tag);

// Back to where an optional part began: the try is forgotten, flag and
// stream state included. The seek does nothing on a stream that failed by
// parsing: only the state is cleared then, and reading goes on where it
// stopped.
void Rewind(Archive& ar, std::streampos at);

// An optional record: it reads itself where the stream stands, and when it
// fails the stream goes back there with the failure forgotten. Whether it
// read.
template <class T>
bool ReadOrRewind(Archive& ar, T& record)
{
    const std::streampos start = ar.tellg();
    record.Read(ar);
    if (Healthy(ar)) {
        return true;
    }
    Rewind(ar, start);
    return false;
}

// The records nested behind a record's own lines, each reading itself in
// turn; the first after which the stream is not healthy ends the read.
template <class T>
bool ReadsWell(Archive& ar, T& record)
{
    record.Read(ar);
    return Healthy(ar);
}
template <class... T>
bool ReadInTurn(Archive& ar, T&... records)
{
    return (ReadsWell(ar, records) && ...);
}

// Records of one kind, one behind the other, up to the first that does not
// read; that one is rewound, and it is no failure of the reader.
template <class T>
void ReadWhileThere(Archive& ar, std::vector<T>& into)
{
    for (;;) {
        T record;
        if (!ReadOrRewind(ar, record)) {
            return;
        }
        into.push_back(std::move(record));
    }
}

// The collection read: `count` times a fresh element from `make` reads
// itself, and only an element after which the stream is healthy is kept. A
// failed element does not end the loop; once the stream itself has failed no
// later element can be kept, so the loop stops there.
template <class T, class Make>
void ReadElements(Archive& ar, std::int32_t count, Make make, std::vector<T>& into)
{
    for (std::int32_t i = 0; i < count && !ar.fail(); ++i) {
        T element = make();
        element.Read(ar);
        if (Healthy(ar)) {
            into.push_back(std::move(element));
        }
    }
}

} // namespace ItUnitechnik
