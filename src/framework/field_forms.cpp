#include "framework/field_forms.h"

#include "framework/real_format.h"

namespace ItUnitechnik {

namespace {

std::wstring_view FirstCharacters(const std::wstring& value, int width)
{
    if (width < 0) {
        return {};
    }
    return std::wstring_view(value).substr(0, static_cast<std::size_t>(width));
}

} // namespace

TextForm Text(int width, const std::wstring& value, const char* member)
{
    return {width, FirstCharacters(value, width), L' ', Adjust::left, &value, member};
}

TextForm RText(int width, const std::wstring& value, Adjust adjust, const char* member)
{
    return {width, FirstCharacters(value, width), L' ', adjust, &value, member};
}

TextForm RText(int width, const std::wstring& value, const char* member)
{
    return RText(width, value, Adjust::keep, member);
}

TextForm ZText(int width, const std::wstring& value, Adjust adjust, const char* member)
{
    return {width, FirstCharacters(value, width), L'0', adjust, &value, member};
}

TextForm ZText(int width, const std::wstring& value, const char* member)
{
    return ZText(width, value, Adjust::keep, member);
}

TextForm ZTextWhole(int width, const std::wstring& value, const char* member)
{
    return {width, value, L'0', Adjust::right, &value, member};
}

std::wostream& operator<<(std::wostream& os, const TextForm& form)
{
    PutField(os, form, Fields::DirectBuffer(os));
    return os;
}

RealForm Real(int places, int decimals, double value, const char* member)
{
    return {places, decimals, value, member};
}

std::wostream& operator<<(std::wostream& os, const RealForm& form)
{
    os.setf(std::ios_base::fixed, std::ios_base::floatfield);
    os.width(form.places + form.decimals + 1);
    os.fill(L'0');
    os.precision(form.decimals);
    os.setf(std::ios_base::right, std::ios_base::adjustfield);
    if (Fields::PlainDigits(os)) {
        char text[128];
        const std::size_t length =
            FixedCharacters(form.value, form.decimals, (os.flags() & std::ios_base::showpoint) != 0, text, 127);
        if (length > 0) {
            // The sign as RealFormat sets it: a minus from the digits, else a
            // plus sign where one is in force.
            wchar_t wide[128];
            std::size_t sign = 0;
            std::size_t count = 0;
            if (text[0] == '-') {
                sign = 1;
            } else if ((os.flags() & std::ios_base::showpos) != 0) {
                wide[count++] = L'+';
                sign = 1;
            }
            for (std::size_t i = 0; i < length; ++i) {
                wide[count++] = static_cast<wchar_t>(static_cast<unsigned char>(text[i]));
            }
            Fields::PutPadded(os, wide, count, sign);
            return os;
        }
    }
    return os << form.value;
}

CharForm Char(wchar_t value, const char* member)
{
    return {value, member};
}

std::wostream& operator<<(std::wostream& os, const CharForm& form)
{
    os.width(1);
    Fields::PutPadded(os, &form.value, 1, 0);
    return os;
}

LiteralForm Literal(const char* text)
{
    return {text};
}

std::wostream& operator<<(std::wostream& os, const LiteralForm& form)
{
    // Widening is the locale's: only the classic one is known to keep ASCII.
    if (Fields::PlainDigits(os) && std::char_traits<char>::length(form.text) <= 64) {
        Fields::PutLiteral(os, form.text);
        return os;
    }
    return os << form.text;
}

void PutBlankThroughStream(std::wostream& os)
{
    if (Fields::PlainDigits(os)) {
        Fields::PutPadded(os, L" ", 1, 0);
        return;
    }
    os << " ";
}

std::wostream& operator<<(std::wostream& os, BlankForm)
{
    PutField(os, Blank, Fields::DirectBuffer(os));
    return os;
}

BlanksForm Blanks(int count)
{
    return {count};
}

std::wostream& operator<<(std::wostream& os, const BlanksForm& form)
{
    for (int i = 0; i < form.count; ++i) {
        os << Blank;
    }
    return os;
}

std::wostream& operator<<(std::wostream& os, EndLineForm)
{
    PutField(os, EndLine, Fields::DirectBuffer(os));
    return os;
}

TagForm Tag(const char* text)
{
    return {text};
}

std::wostream& operator<<(std::wostream& os, const TagForm& form)
{
    return os << Literal(form.text) << EndLine;
}

} // namespace ItUnitechnik
