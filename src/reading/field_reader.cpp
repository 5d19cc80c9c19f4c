#include "reading/field_reader.h"

#include "framework/float_chars.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>

namespace ItUnitechnik {

namespace {

std::string Describe(const ReadStop& stop)
{
    std::string text =
        "line " + std::to_string(stop.line) + ", column " + std::to_string(stop.column) + ": expected " + stop.expected;
    if (!stop.record.empty()) {
        text += " in " + stop.record;
    }
    if (stop.atEnd) {
        text += ", but the text ends there";
    }
    return text;
}

bool IsDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

bool IsHexDigit(wchar_t c)
{
    return IsDigit(c) || (c >= L'A' && c <= L'F');
}

// The characters of an integer field as the writer pads it: fill zeros and
// digits, a sign behind the zeros.
bool IsUnsignedFieldChar(wchar_t c)
{
    return IsDigit(c) || c == L'-';
}

bool IsSignedFieldChar(wchar_t c)
{
    return IsDigit(c) || c == L'+' || c == L'-';
}

// A fixed number: fill zeros, sign, digits, point; and the words a double
// that is not a number prints.
bool IsRealFieldChar(wchar_t c)
{
    return IsDigit(c) || c == L'-' || c == L'.' || c == L'n' || c == L'a' || c == L'i' || c == L'f';
}

bool MoreDigits(wchar_t c, const std::wstring&)
{
    return IsDigit(c);
}

bool MoreHexDigits(wchar_t c, const std::wstring&)
{
    return IsHexDigit(c);
}

// A wider fixed number goes on with digits, and with its point when the
// places before it outgrew the field.
bool MoreRealChars(wchar_t c, const std::wstring& taken)
{
    return IsDigit(c) || (c == L'.' && taken.find(L'.') == std::wstring::npos);
}

std::string Narrow(const std::wstring& text)
{
    std::string narrow;
    narrow.reserve(text.size());
    for (wchar_t c : text) {
        narrow += static_cast<char>(c);
    }
    return narrow;
}

// The digits behind the fill zeros and the sign, as a magnitude; false when
// there are none or too many.
bool Magnitude(const std::string& digits, int base, std::uint64_t& value)
{
    if (digits.empty()) {
        return false;
    }
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
    return result.ec == std::errc() && result.ptr == digits.data() + digits.size();
}

} // namespace

ReadFailure::ReadFailure(ReadStop stop) : stop_(std::move(stop)), message_(Describe(stop_)) {}

FieldReader::FieldReader(std::wstring text) : text_(std::move(text))
{
    lineStarts_.push_back(0);
    for (std::size_t i = 0; i < text_.size(); ++i) {
        if (text_[i] == L'\n') {
            lineStarts_.push_back(i + 1);
        }
    }
}

ReadStop FieldReader::StopAt(std::size_t offset, std::string expected, bool atEnd) const
{
    offset = std::min(offset, text_.size());
    const auto after = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
    const std::size_t line = static_cast<std::size_t>(after - lineStarts_.begin());
    ReadStop stop;
    stop.line = line;
    stop.column = offset - lineStarts_[line - 1] + 1;
    stop.expected = std::move(expected);
    stop.record = record_;
    stop.atEnd = atEnd;
    return stop;
}

void FieldReader::Fail(std::string expected) const
{
    throw ReadFailure(StopAt(fieldStart_, std::move(expected), position_ >= text_.size()));
}

void FieldReader::FailHere(std::string expected) const
{
    throw ReadFailure(StopAt(position_, std::move(expected), position_ >= text_.size()));
}

std::wstring FieldReader::Take(std::size_t minimum, bool (*allowed)(wchar_t),
                               bool (*more)(wchar_t, const std::wstring&), const char* what)
{
    fieldStart_ = position_;
    std::wstring taken;
    while (taken.size() < minimum) {
        if (position_ >= text_.size() || !allowed(text_[position_])) {
            throw ReadFailure(StopAt(fieldStart_,
                                     std::string(what) + " of at least " + std::to_string(minimum) + " places",
                                     position_ >= text_.size()));
        }
        taken += text_[position_++];
    }
    while (position_ < text_.size() && more(text_[position_], taken)) {
        taken += text_[position_++];
    }
    return taken;
}

bool FieldReader::CutShortHere()
{
    if (!linesCutShort_ || position_ >= text_.size() || text_[position_] != L'\n') {
        return false;
    }
    sawLineCutShort_ = true;
    return true;
}

std::wstring FieldReader::Text(int width)
{
    fieldStart_ = position_;
    const std::size_t count = static_cast<std::size_t>(std::max(width, 0));
    if (linesCutShort_) {
        // The line may end inside the field: what stands before its end,
        // then the blanks the line lost.
        const auto begin = text_.begin() + static_cast<std::ptrdiff_t>(position_);
        const auto end = begin + static_cast<std::ptrdiff_t>(std::min(count, text_.size() - position_));
        const auto lineEnd = std::find(begin, end, L'\n');
        if (lineEnd != end) {
            std::wstring field(begin, lineEnd);
            position_ += field.size();
            field.resize(count, L' ');
            CutShortHere();
            return field;
        }
    }
    if (text_.size() - position_ < count) {
        throw ReadFailure(StopAt(position_, "a text of " + std::to_string(count) + " places", true));
    }
    std::wstring field = text_.substr(position_, count);
    position_ += count;
    return field;
}

std::wstring FieldReader::TextAtLeast(int width)
{
    std::wstring field = Text(width);
    while (position_ < text_.size() && text_[position_] != L' ' && text_[position_] != L'\n') {
        field += text_[position_++];
    }
    return field;
}

std::int64_t FieldReader::Integer(NumberKind kind, int width)
{
    const bool isSigned = kind == NumberKind::signedField;
    const std::size_t places = static_cast<std::size_t>(std::max(width, 1)) + (isSigned ? 1 : 0);
    const std::string field = Narrow(Take(places, isSigned ? IsSignedFieldChar : IsUnsignedFieldChar, MoreDigits,
                                          isSigned ? "a signed number" : "a number"));

    bool negative = false;
    std::string digits;
    if (isSigned) {
        // The sign stands first; the fill zeros stand between it and the digits.
        if (field[0] != '+' && field[0] != '-') {
            Fail("a sign");
        }
        negative = field[0] == '-';
        digits = field.substr(1);
    } else {
        // The fill zeros stand in front of a minus sign.
        const std::size_t minus = field.find('-');
        if (minus != std::string::npos) {
            if (field.find_first_not_of('0') != minus) {
                Fail("a number");
            }
            negative = true;
            signBehindZeros_ = signBehindZeros_ || minus > 0;
            digits = field.substr(minus + 1);
        } else {
            digits = field;
        }
    }
    std::uint64_t magnitude = 0;
    if (!Magnitude(digits, 10, magnitude) || magnitude > static_cast<std::uint64_t>(1) << 62) {
        Fail("a number");
    }
    const auto value = static_cast<std::int64_t>(magnitude);
    return negative ? -value : value;
}

std::int32_t FieldReader::Hex(int width)
{
    const std::string field =
        Narrow(Take(static_cast<std::size_t>(std::max(width, 1)), IsHexDigit, MoreHexDigits, "a hexadecimal number"));
    std::uint64_t value = 0;
    if (!Magnitude(field, 16, value) || value > std::numeric_limits<std::uint32_t>::max()) {
        Fail("a hexadecimal number of 32 bits");
    }
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(value));
}

double FieldReader::Real(int places, int decimals)
{
    const std::size_t width = static_cast<std::size_t>(std::max(places + decimals + 1, 1));
    std::string field =
        Narrow(Take(width, IsRealFieldChar, decimals > 0 ? MoreRealChars : MoreDigits, "a real number"));

    // The fill zeros stand in front of a sign, a word or the digits.
    const std::size_t start = field.find_first_not_of('0');
    std::string value = start == std::string::npos ? std::string("0") : field.substr(start);
    if (start != std::string::npos && value[0] == '.') {
        value = "0" + value; // the zero in front of the point is a digit, not fill
    }
    const bool negative = !value.empty() && value[0] == '-';
    signBehindZeros_ = signBehindZeros_ || (negative && start > 0);
    const std::string body = negative ? value.substr(1) : value;
    if (body == "nan") {
        return negative ? -std::numeric_limits<double>::quiet_NaN() : std::numeric_limits<double>::quiet_NaN();
    }
    if (body == "inf") {
        return negative ? -std::numeric_limits<double>::infinity() : std::numeric_limits<double>::infinity();
    }
    // Digits, then the point and exactly the decimals the form prints.
    const std::size_t point = body.find('.');
    const bool wellFormed = !body.empty() && body.find_first_not_of("0123456789.") == std::string::npos &&
                            (decimals > 0 ? point != std::string::npos && point > 0 &&
                                                body.size() - point - 1 == static_cast<std::size_t>(decimals)
                                          : point == std::string::npos);
    if (!wellFormed) {
        Fail("a real number with " + std::to_string(decimals) + " decimals");
    }
    double parsed = 0;
    const auto result = FloatFromChars(body.data(), body.data() + body.size(), parsed, std::chars_format::fixed);
    if (result.ec != std::errc() || result.ptr != body.data() + body.size()) {
        Fail("a real number");
    }
    return negative ? -parsed : parsed;
}

bool FieldReader::Digit()
{
    fieldStart_ = position_;
    if (position_ >= text_.size() || (text_[position_] != L'0' && text_[position_] != L'1')) {
        Fail("the digit 0 or 1");
    }
    return text_[position_++] == L'1';
}

wchar_t FieldReader::Char()
{
    fieldStart_ = position_;
    if (CutShortHere()) {
        return L' ';
    }
    if (position_ >= text_.size()) {
        Fail("a character");
    }
    return text_[position_++];
}

void FieldReader::Blank()
{
    fieldStart_ = position_;
    if (CutShortHere()) {
        return;
    }
    Literal(" ");
}

void FieldReader::Blanks(int count)
{
    for (int i = 0; i < count; ++i) {
        Blank();
    }
}

void FieldReader::Literal(const char* text)
{
    fieldStart_ = position_;
    const std::size_t length = std::strlen(text);
    for (std::size_t i = 0; i < length; ++i) {
        if (position_ + i >= text_.size() ||
            text_[position_ + i] != static_cast<wchar_t>(static_cast<unsigned char>(text[i]))) {
            const std::string what = std::string(text) == " " ? "a blank" : "\"" + std::string(text) + "\"";
            throw ReadFailure(StopAt(position_ + i, what, position_ + i >= text_.size()));
        }
    }
    position_ += length;
}

void FieldReader::EndLine()
{
    fieldStart_ = position_;
    if (position_ == text_.size() && position_ > 0 && text_[position_ - 1] != L'\n') {
        // The last line without its line end.
        sawEndForLineEnd_ = true;
        return;
    }
    if (position_ >= text_.size() || text_[position_] != L'\n') {
        Fail("the end of the line");
    }
    ++position_;
}

void FieldReader::Tag(const char* tag)
{
    Literal(tag);
    EndLine();
}

bool FieldReader::NextLineIs(const char* tag) const
{
    const std::size_t length = std::strlen(tag);
    if (text_.size() - position_ < length + 1) {
        return false;
    }
    for (std::size_t i = 0; i < length; ++i) {
        if (text_[position_ + i] != static_cast<wchar_t>(static_cast<unsigned char>(tag[i]))) {
            return false;
        }
    }
    return text_[position_ + length] == L'\n';
}

bool FieldReader::AtLineEnd() const
{
    return position_ < text_.size() && text_[position_] == L'\n';
}

bool FieldReader::AtEnd() const
{
    return position_ >= text_.size();
}

} // namespace ItUnitechnik
