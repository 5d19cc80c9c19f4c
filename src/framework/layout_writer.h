#pragma once

#include "framework/archive.h"
#include "framework/field_forms.h"
#include "framework/layout.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

// The write direction of a record's layout: each word puts its field form on
// the Archive, as a Write written out by hand would, so the bytes and the
// speed are those of the forms themselves.
namespace ItUnitechnik {

class LayoutWriter {
public:
    explicit LayoutWriter(Archive& ar) : ar_(ar) {}

    static constexpr bool reading = false;

    template <class T>
    void UInt(int width, const T& value, const char* name)
    {
        ar_ << ItUnitechnik::UInt(width, Plain(value), name);
    }
    template <class T, class Member>
    void UInt(int width, AsType<T, Member> value, const char* name)
    {
        ar_ << ItUnitechnik::UInt(width, static_cast<T>(value.member), name);
    }
    void UInt(int width, NotBelowZero value, const char* name)
    {
        ar_ << ItUnitechnik::UInt(width, value.member < 0 ? 0 : value.member, name);
    }
    template <class T>
    void SInt(int width, const T& value, const char* name)
    {
        ar_ << ItUnitechnik::SInt(width, value, name);
    }
    template <class T>
    void Hex(int width, const T& value, const char* name)
    {
        ar_ << ItUnitechnik::Hex(width, value, name);
    }
    void Real(int places, int decimals, double value, const char* name)
    {
        ar_ << ItUnitechnik::Real(places, decimals, value, name);
    }
    void Char(wchar_t value, const char* name) { ar_ << ItUnitechnik::Char(value, name); }

    void Text(int width, const std::wstring& value, const char* name, TokenMark = {})
    {
        ar_ << ItUnitechnik::Text(width, value, name);
    }
    void RText(int width, const std::wstring& value, const char* name, TokenMark = {})
    {
        ar_ << ItUnitechnik::RText(width, value, name);
    }
    void RText(int width, const std::wstring& value, Adjust adjust, const char* name, TokenMark = {})
    {
        ar_ << ItUnitechnik::RText(width, value, adjust, name);
    }
    void ZText(int width, const std::wstring& value, const char* name, TokenMark = {})
    {
        ar_ << ItUnitechnik::ZText(width, value, name);
    }
    void ZText(int width, const std::wstring& value, Adjust adjust, const char* name, TokenMark = {})
    {
        ar_ << ItUnitechnik::ZText(width, value, adjust, name);
    }
    void ZTextWhole(int width, const std::wstring& value, const char* name, TokenMark = {})
    {
        ar_ << ItUnitechnik::ZTextWhole(width, value, name);
    }

    void Blank() { ar_ << ItUnitechnik::Blank; }
    void Blanks(int count) { ar_ << ItUnitechnik::Blanks(count); }
    void EndLine() { ar_ << ItUnitechnik::EndLine; }
    void Tag(const char* text) { ar_ << ItUnitechnik::Tag(text); }
    void Literal(const char* text) { ar_ << ItUnitechnik::Literal(text); }
    // A character of its own that no member holds.
    void Constant(wchar_t value) { ar_ << ItUnitechnik::Char(value); }

    template <class R>
    void Record(R& record)
    {
        record.Write(ar_);
    }

    template <class T>
    std::size_t Count(int width, const std::vector<T>& entries, const char* name)
    {
        ar_ << ItUnitechnik::UInt(width, static_cast<std::uint32_t>(entries.size()), name);
        return entries.size();
    }
    template <class T, class... Make>
    void Lines(std::size_t, std::vector<T>& entries, Make...)
    {
        for (T& entry : entries) {
            entry.Write(ar_);
            EndLine();
        }
    }
    template <class T, class... Make>
    void OwnLines(std::size_t, std::vector<T>& entries, Make...)
    {
        if (entries.empty()) {
            EndLine();
        }
        for (T& entry : entries) {
            EndLine();
            entry.Write(ar_);
        }
    }
    template <class T, class... Make>
    void Run(std::size_t, std::vector<T>& entries, Make...)
    {
        for (T& entry : entries) {
            Blank();
            entry.Write(ar_);
        }
    }
    template <class T, class... Make>
    void Each(std::size_t, std::vector<T>& entries, Make...)
    {
        for (T& entry : entries) {
            entry.Write(ar_);
        }
    }
    template <class T, std::size_t N>
    void Row(std::array<T, N>& entries)
    {
        bool first = true;
        for (T& entry : entries) {
            if (!first) {
                Blank();
            }
            first = false;
            entry.Write(ar_);
        }
    }
    template <class T>
    void Tagged(const char*, std::vector<T>& entries)
    {
        Each(entries.size(), entries);
    }
    template <class T>
    void TaggedLines(const char*, std::vector<T>& entries)
    {
        Lines(entries.size(), entries);
    }
    bool Present(bool flag, const char*) const { return flag; }
    bool LineGoesOn(bool condition) const { return condition; }

private:
    // A flag is written as the digit it is, never as a character.
    template <class T>
    static auto Plain(const T& value)
    {
        if constexpr (std::is_same<T, bool>::value) {
            return static_cast<int>(value);
        } else {
            return value;
        }
    }

    Archive& ar_;
};

// A record's Write: its layout on the Archive, inside the scope that names it
// to a field sink.
template <class R>
bool WriteLayout(Archive& ar, R& record)
{
    const RecordScope scope(ar, &record);
    LayoutWriter io(ar);
    Layout(io, record);
    return Healthy(ar);
}

} // namespace ItUnitechnik
