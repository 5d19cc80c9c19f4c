#include "framework/field_forms.h"

namespace ItUnitechnik {
namespace {

std::wstring FirstCharacters(const std::wstring& value, int width)
{
    if (width < 0) {
        return std::wstring();
    }
    return value.substr(0, static_cast<std::size_t>(width));
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
    if (form.adjust == Adjust::left) {
        os.setf(std::ios_base::left, std::ios_base::adjustfield);
    } else if (form.adjust == Adjust::right) {
        os.setf(std::ios_base::right, std::ios_base::adjustfield);
    }
    os.fill(form.fill);
    os.width(form.width);
    return os << form.value;
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
    return os << form.value;
}

CharForm Char(wchar_t value, const char* member)
{
    return {value, member};
}

std::wostream& operator<<(std::wostream& os, const CharForm& form)
{
    os.width(1);
    return os << form.value;
}

LiteralForm Literal(const char* text)
{
    return {text};
}

std::wostream& operator<<(std::wostream& os, const LiteralForm& form)
{
    return os << form.text;
}

std::wostream& operator<<(std::wostream& os, BlankForm)
{
    return os << " ";
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
    os.put(os.widen('\n'));
    return os.flush();
}

TagForm Tag(const char* text)
{
    return {text};
}

std::wostream& operator<<(std::wostream& os, const TagForm& form)
{
    return os << form.text << EndLine;
}

} // namespace ItUnitechnik
