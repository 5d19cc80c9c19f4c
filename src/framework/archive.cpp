#include "framework/archive.h"

#include "framework/field_forms.h"
#include "framework/real_format.h"

namespace ItUnitechnik {

Archive::Archive(std::basic_streambuf<wchar_t>* buffer)
    : std::basic_iostream<wchar_t>(buffer)
{
    imbue(ClassicNumberLocale());
    Fields::KeepPlainDigits(*this);
}

Archive::~Archive()
{
    if (rdbuf() != nullptr) {
        flush();
    }
}

bool Healthy(const Archive& ar)
{
    if (ar.bad()) {
        return false;
    }
    if (ar.fail()) {
        return false;
    }
    return ar.valid;
}

} // namespace ItUnitechnik
