#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

// The field forms of the write side, read back by place: each reading takes
// exactly the characters its form wrote, so a value reads back whatever it
// holds (blanks inside a text, a sign behind fill zeros, a number wider than
// its field). A field that is not there ends the reading with the place and
// what was looked for.
namespace ItUnitechnik {

// Where a reading stopped, and why.
struct ReadStop {
    std::size_t line = 0;   // from 1
    std::size_t column = 0; // from 1, in characters of that line
    std::string expected;   // what the reading looked for there
    std::string record;     // the tag of the record being read, if any
    bool atEnd = false;     // the text ended there
};

class ReadFailure : public std::exception {
public:
    explicit ReadFailure(ReadStop stop);
    const ReadStop& Stop() const { return stop_; }
    const char* what() const noexcept override { return message_.c_str(); }

private:
    ReadStop stop_;
    std::string message_;
};

// A cursor over a document's text whose line ends are single line feeds.
class FieldReader {
public:
    explicit FieldReader(std::wstring text);

    // Text(w), RText(w), ZText(w): the w characters of the field as they
    // stand, fill included.
    std::wstring Text(int width);
    // The one text written whole: at least w characters, up to the next blank
    // or line end.
    std::wstring TextAtLeast(int width);
    // UInt(w): w places or more, fill zeros in front, a minus sign behind them.
    template <class T>
    T UInt(int width)
    {
        return Narrowed<T>(Integer(NumberKind::unsignedField, width), "a number");
    }
    // SInt(w): a sign, then w digits or more.
    template <class T>
    T SInt(int width)
    {
        return Narrowed<T>(Integer(NumberKind::signedField, width), "a signed number");
    }
    // Hex(w): w upper-case hexadecimal digits or more; a negative value is its
    // 32-bit pattern.
    std::int32_t Hex(int width);
    // Real(i,d): i+d+1 places or more, the point before the last d digits.
    double Real(int places, int decimals);
    // A boolean written as UInt(1): the one digit 0 or 1.
    bool Digit();
    // Char: one character, whatever it is.
    wchar_t Char();
    void Blank();
    void Blanks(int count);
    // A narrow literal, character for character.
    void Literal(const char* text);
    void EndLine();
    // A tag: the literal, then the line end.
    void Tag(const char* tag);

    // Whether the next line is exactly this tag; nothing is taken.
    bool NextLineIs(const char* tag) const;
    bool AtLineEnd() const;
    bool AtEnd() const;

    // Whether a number so far had its minus sign behind fill zeros.
    bool SawSignBehindZeros() const { return signBehindZeros_; }

    // Lines that may have lost their trailing blanks: a text, a character or
    // a blank that the line end cuts short reads as the blanks it lost, and
    // the line end stays to be read. Off, a text takes its places across a
    // line end, as a line feed inside a text stands. A number is never cut
    // so (its fill is zeros) and must stand whole either way.
    void TakeLinesCutShort(bool take) { linesCutShort_ = take; }
    // Whether a field so far was cut short by its line end.
    bool SawLineCutShort() const { return sawLineCutShort_; }
    // Whether the end of the text so far stood in the place of a line end.
    bool SawEndForLineEnd() const { return sawEndForLineEnd_; }

    // The tag of the record being read, for the place of a stop.
    void SetRecord(std::string tag) { record_ = std::move(tag); }
    const std::string& Record() const { return record_; }

    // Where the cursor stands, and where the field read last began.
    std::size_t Offset() const { return position_; }
    std::size_t FieldStart() const { return fieldStart_; }
    // A stop at `offset`; `atEnd` when the text ended before what was looked for.
    ReadStop StopAt(std::size_t offset, std::string expected, bool atEnd) const;
    // Ends the reading at the start of the field read last, or here.
    [[noreturn]] void Fail(std::string expected) const;
    [[noreturn]] void FailHere(std::string expected) const;

private:
    enum class NumberKind { unsignedField, signedField };

    // The field's characters: `minimum` of them that `allowed` accepts, then
    // as many more as `more` accepts (a number wider than its field).
    std::wstring Take(std::size_t minimum, bool (*allowed)(wchar_t), bool (*more)(wchar_t, const std::wstring&),
                      const char* what);
    std::int64_t Integer(NumberKind kind, int width);
    // With lines cut short taken: whether the line ends here, so that what
    // stood before its end was blanks.
    bool CutShortHere();

    template <class T>
    T Narrowed(std::int64_t value, const char* what) const
    {
        if constexpr (std::is_same<T, bool>::value) {
            if (value != 0 && value != 1) {
                Fail(std::string(what) + " of 0 or 1");
            }
            return value == 1;
        } else {
            const bool below = value < static_cast<std::int64_t>(std::numeric_limits<T>::min());
            const bool above = value > 0 && static_cast<std::uint64_t>(value) >
                                                static_cast<std::uint64_t>(std::numeric_limits<T>::max());
            if (below || above) {
                Fail(std::string(what) + " that fits its field's type");
            }
            return static_cast<T>(value);
        }
    }

    std::wstring text_;
    std::size_t position_ = 0;
    std::size_t fieldStart_ = 0;
    bool signBehindZeros_ = false;
    bool linesCutShort_ = false;
    bool sawLineCutShort_ = false;
    bool sawEndForLineEnd_ = false;
    std::vector<std::size_t> lineStarts_;
    std::string record_;
};

} // namespace ItUnitechnik
