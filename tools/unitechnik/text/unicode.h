#pragma once

#include "itunitechnik.h"

#include <optional>
#include <string>
#include <string_view>

namespace ItUnitechnik::Tool {

// A text as the exports take it: 16-bit code units (wchar_t on Windows,
// char16_t elsewhere), zero-terminated through c_str().
using HostText = std::basic_string<it_char16>;

// UTF-8 as 16-bit code units, a character above U+FFFF as a surrogate pair,
// exactly as a host passes it. Nothing for bytes that are no UTF-8 (an
// encoded surrogate included).
std::optional<HostText> Utf8ToHost(std::string_view utf8);

// 16-bit code units as UTF-8, through the library's own conversion: a
// surrogate without its partner (a field cut in the middle of a pair)
// becomes U+FFFD.
std::string HostToUtf8(const HostText& text);

// The units one to one in a wide text, as the records hold a host's text.
std::wstring Wide(const HostText& text);

// UTF-8 as 16-bit units in a wide text; empty for bytes that are no UTF-8.
std::wstring WideFromUtf8(const std::string& text);

} // namespace ItUnitechnik::Tool
