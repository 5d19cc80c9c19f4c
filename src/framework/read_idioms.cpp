#include "framework/read_idioms.h"

#include <cwchar>
#include <limits>
#include <vector>

namespace ItUnitechnik {

void GetText(std::wistream& in, int width, std::wstring& into)
{
    std::vector<wchar_t> buffer(static_cast<std::size_t>(width < 0 ? 0 : width) + 1, L'\0');
    in.get(buffer.data(), static_cast<std::streamsize>(buffer.size()));
    into.assign(buffer.data());
}

void SkipChar(std::wistream& in)
{
    in.get();
}

void SkipLine(std::wistream& in)
{
    in.ignore(std::numeric_limits<std::streamsize>::max(), in.widen('\n'));
}

std::wstring ReadRestOfLine(std::wistream& in)
{
    std::wstring line;
    std::getline(in, line, in.widen('\n'));
    return line;
}

std::wstring ReadLine(std::wistream& in)
{
    std::wstring line = ReadRestOfLine(in);
    const std::size_t carriageReturn = line.rfind(L'\r');
    if (carriageReturn != std::wstring::npos) {
        line.erase(carriageReturn);
    }
    return line;
}

std::wstring ReadToken(std::wistream& in)
{
    std::wstring token;
    in >> token;
    return token;
}

void SetSkipWs(std::wistream& in)
{
    in.setf(std::ios_base::skipws);
}

void ClearSkipWs(std::wistream& in)
{
    in.unsetf(std::ios_base::skipws);
}

bool Matches(const std::wstring& text, const wchar_t* tag)
{
    return text.size() == std::wcslen(tag) && text.compare(tag) == 0;
}

bool ReadFlag(std::wistream& in)
{
    wchar_t flag = L'0';
    in >> flag;
    return flag != L'0';
}

void Trim(std::wstring& text)
{
    static const wchar_t set[] = L" \t\n";
    const std::size_t firstIndex = text.find_first_not_of(set);
    const std::size_t first = firstIndex == std::wstring::npos ? 0 : firstIndex;
    const std::size_t last = text.find_last_not_of(set);
    if (last == 0) {
        text.clear();
        return;
    }
    if (last == std::wstring::npos) {
        text.clear();
        return;
    }
    text = text.substr(first, last - first + 1);
}

} // namespace ItUnitechnik

namespace ItUnitechnik {

int WideToInt(const std::wstring& text)
{
    std::size_t i = 0;
    while (i < text.size() && (text[i] == L' ' || text[i] == L'\t' || text[i] == L'\n' || text[i] == L'\v' ||
                               text[i] == L'\f' || text[i] == L'\r')) {
        ++i;
    }
    bool negative = false;
    if (i < text.size() && (text[i] == L'+' || text[i] == L'-')) {
        negative = text[i] == L'-';
        ++i;
    }
    const long long limit = negative ? 2147483648LL : 2147483647LL;
    long long value = 0;
    for (; i < text.size() && text[i] >= L'0' && text[i] <= L'9'; ++i) {
        value = value * 10 + (text[i] - L'0');
        if (value > limit) {
            value = limit;
        }
    }
    return static_cast<int>(negative ? -value : value);
}

bool ExpectToken(Archive& ar, const wchar_t* tag)
{
    if (!Matches(ReadToken(ar), tag)) {
        ar.valid = false;
        return false;
    }
    return true;
}

bool ExpectLine(Archive& ar, const wchar_t* tag)
{
    if (!Matches(ReadLine(ar), tag)) {
        ar.valid = false;
        return false;
    }
    return true;
}

void Rewind(Archive& ar, std::streampos at)
{
    ar.seekg(at);
    ar.valid = true;
    ar.clear();
}

} // namespace ItUnitechnik
