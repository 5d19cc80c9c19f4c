#pragma once

#include "framework/field_buffer.h"

#include <cstddef>
#include <ostream>

// How a field's characters reach the stream: straight into the put area of
// the library's own buffers where they fit, else through the stream buffer as
// the ordinary inserters would put them. The field forms (field_forms.h) are
// written on these.
namespace ItUnitechnik {
namespace Fields {

// Marks a stream that has just taken the classic number formats; any locale
// imbued later takes the mark away again. When its buffer is a FieldBuffer,
// the forms fill that buffer's put area themselves for as long as it stays
// the stream's buffer.
void KeepPlainDigits(std::wostream& stream);
// Whether the stream keeps the classic number formats that an Archive gives
// it, so that a form may make its own digits.
bool PlainDigits(std::ios_base& stream);

// An integer as the inserter sees it: for a decimal field its sign and
// magnitude, and whether its type is signed (only a signed type shows a plus
// sign); for a hexadecimal field its bit pattern in the width of its type.
struct IntegerValue {
    bool negative;
    bool signedType;
    unsigned long long magnitude;
};

// Puts the integer with the stream's width, fill, adjustment, plus sign and
// case, as the inserter would; false when the form must leave it to the
// inserter (another number format in force).
bool PutInteger(std::wostream& os, const IntegerValue& value, bool hexadecimal);

// The put area a field may go into directly: that of the FieldBuffer the
// stream was marked with, while it is still the stream's buffer, the stream
// is good, and nothing asks for a flush around the field (no tied stream, no
// `unitbuf`). Null otherwise.
FieldBuffer* DirectBuffer(std::wostream& os);

// Puts the characters of one field with the stream's width, fill and
// adjustment, as the inserters pad them: behind the text for `left`; between
// the first `prefix` characters (a sign) and the rest for `internal`; in
// front of the text for any other adjustment. The width is used up. A stream
// that is not good takes nothing, as behind a sentry.
void PutPadded(std::wostream& os, const wchar_t* text, std::size_t length, std::size_t prefix);

// A narrow ASCII literal, widened one character each, as PutPadded puts it.
void PutLiteral(std::wostream& os, const char* text);

} // namespace Fields

} // namespace ItUnitechnik
