#pragma once

#include "framework/layout.h"
#include "reading/departures.h"
#include "reading/field_reader.h"
#include "records/order/order.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

// The tolerant reading's loader: the read direction of the records' layouts.
// Each word of a layout takes its field from the FieldReader into the member,
// exactly the characters the writer's form put there. A child is appended to
// its list before it is read, so that a reading that stops keeps what it had.
// What the layouts do not say, the departures from the records' own Read that
// a document needed, is noted around them (loader.cpp).
namespace ItUnitechnik {

class Loader {
public:
    explicit Loader(FieldReader& in) : in_(in) {}

    void Document(std::vector<Order>& orders, bool& trailingData);
    const std::set<Departure>& Departures() const { return departures_; }

    static constexpr bool reading = true;

    // The words of a layout, read.
    template <class T>
    void UInt(int width, T& member, const char*)
    {
        if constexpr (std::is_same<T, bool>::value) {
            member = in_.Digit();
        } else {
            member = in_.UInt<T>(width);
        }
    }
    template <class T, class Member>
    void UInt(int width, AsType<T, Member> value, const char*)
    {
        value.member = in_.UInt<T>(width);
    }
    void UInt(int width, NotBelowZero value, const char*) { value.member = in_.UInt<std::int32_t>(width); }
    template <class T>
    void SInt(int width, T& member, const char*)
    {
        member = in_.SInt<T>(width);
    }
    template <class T>
    void Hex(int width, T& member, const char*)
    {
        member = static_cast<T>(in_.Hex(width));
    }
    void Real(int places, int decimals, double& member, const char*) { member = in_.Real(places, decimals); }
    void Char(wchar_t& member, const char*) { member = in_.Char(); }

    void Text(int width, std::wstring& member, const char*) { member = in_.Text(width); }
    void Text(int width, std::wstring& member, const char*, TokenMark) { member = Code(width); }
    void RText(int width, std::wstring& member, const char*) { member = in_.Text(width); }
    void RText(int width, std::wstring& member, const char*, TokenMark) { member = Code(width); }
    void RText(int width, std::wstring& member, Adjust, const char*) { member = in_.Text(width); }
    void RText(int width, std::wstring& member, Adjust, const char*, TokenMark) { member = Code(width); }
    void ZText(int width, std::wstring& member, const char*) { member = in_.Text(width); }
    void ZText(int width, std::wstring& member, const char*, TokenMark) { member = Code(width); }
    void ZText(int width, std::wstring& member, Adjust, const char*) { member = in_.Text(width); }
    void ZText(int width, std::wstring& member, Adjust, const char*, TokenMark) { member = Code(width); }
    void ZTextWhole(int width, std::wstring& member, const char*) { member = in_.TextAtLeast(width); }

    void Blank() { in_.Blank(); }
    void Blanks(int count) { in_.Blanks(count); }
    void EndLine() { in_.EndLine(); }
    // A record's tag names the record a stop is placed in; an end tag names
    // the record it closes again, behind the records read inside it.
    void Tag(const char* tag);
    void Literal(const char* text);
    void Constant(wchar_t value);

    template <class R>
    void Record(R& record)
    {
        Load(record);
    }

    template <class T>
    std::size_t Count(int width, const std::vector<T>&, const char*)
    {
        return Count(in_.UInt<std::int64_t>(width));
    }
    template <class T, class... Make>
    void Lines(std::size_t count, std::vector<T>& entries, Make... make)
    {
        for (std::size_t i = 0; i < count; ++i) {
            Append(entries, make...);
            in_.EndLine();
        }
    }
    template <class T, class... Make>
    void OwnLines(std::size_t count, std::vector<T>& entries, Make... make)
    {
        if (count == 0) {
            in_.EndLine();
        }
        for (std::size_t i = 0; i < count; ++i) {
            in_.EndLine();
            Append(entries, make...);
        }
    }
    template <class T, class... Make>
    void Run(std::size_t count, std::vector<T>& entries, Make... make)
    {
        for (std::size_t i = 0; i < count; ++i) {
            in_.Blank();
            Append(entries, make...);
        }
    }
    template <class T, class... Make>
    void Each(std::size_t count, std::vector<T>& entries, Make... make)
    {
        for (std::size_t i = 0; i < count; ++i) {
            Append(entries, make...);
        }
    }
    template <class T, std::size_t N>
    void Row(std::array<T, N>& entries)
    {
        bool first = true;
        for (T& entry : entries) {
            if (!first) {
                in_.Blank();
            }
            first = false;
            Load(entry);
        }
    }
    template <class T>
    void Tagged(const char* tag, std::vector<T>& entries)
    {
        while (in_.NextLineIs(tag)) {
            Append(entries);
        }
    }
    template <class T>
    void TaggedLines(const char* tag, std::vector<T>& entries)
    {
        while (in_.NextLineIs(tag)) {
            Append(entries);
            in_.EndLine();
        }
    }
    bool Present(bool& flag, const char* tag)
    {
        flag = in_.NextLineIs(tag);
        return flag;
    }
    bool LineGoesOn(bool) const { return !in_.AtLineEnd(); }
    bool Present(bool&& condition, const char* tag) { return condition = in_.NextLineIs(tag); }

private:
    // A record in its layout; the records below take notes around it.
    template <class R>
    void Load(R& record)
    {
        Layout(*this, record);
    }
    void Load(Order& order);
    void Load(ElementPart& element);
    void Load(Lot& lot);
    void Load(MountingPart& part);
    void Load(Reinforcement& block);
    void Load(WeldingPointData& points);
    void Load(GeoData& piece);

    template <class T, class... Make>
    void Append(std::vector<T>& entries, Make... make)
    {
        if constexpr (sizeof...(Make) == 0) {
            entries.emplace_back();
        } else {
            entries.push_back((make(), ...));
        }
        Load(entries.back());
    }

    // A count in front of a list: zero or more. Each element is appended
    // before it is read, so a count beyond what the file holds ends the
    // reading at the file's end and makes no room in advance.
    std::size_t Count(std::int64_t value);
    // A code the records' Read takes as a token: note when it holds a blank.
    std::wstring Code(int width);
    void Note(Departure departure) { departures_.insert(departure); }

    FieldReader& in_;
    std::set<Departure> departures_;
};

} // namespace ItUnitechnik
