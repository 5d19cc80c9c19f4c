#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace ItUnitechnik::Fuzzing {

// The fuzzer's bytes taken as a sequence of values. Past the end every value
// is zero, so any input decodes whole.
class FuzzInput {
public:
    FuzzInput(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

    bool Empty() const { return position_ >= size_; }

    template <class T>
    T Take()
    {
        T value{};
        unsigned char bytes[sizeof(T)] = {};
        for (std::size_t i = 0; i < sizeof(T) && position_ < size_; ++i) {
            bytes[i] = data_[position_++];
        }
        std::memcpy(&value, bytes, sizeof(T));
        return value;
    }

    // A count from 0 to `most`.
    std::size_t Count(std::size_t most) { return Take<std::uint16_t>() % (most + 1); }

    // A text of 16-bit units, any value but 0, of at most `most` units.
    std::u16string Text(std::size_t most)
    {
        const std::size_t length = Count(most);
        std::u16string text;
        for (std::size_t i = 0; i < length && !Empty(); ++i) {
            const auto unit = Take<char16_t>();
            text += unit == 0 ? u' ' : unit;
        }
        return text;
    }

    // One byte's worth as a text of plain characters: dates, names, codes.
    std::u16string NarrowText(std::size_t most)
    {
        const std::size_t length = Count(most);
        std::u16string text;
        for (std::size_t i = 0; i < length && !Empty(); ++i) {
            const auto byte = Take<std::uint8_t>();
            text += static_cast<char16_t>(byte == 0 ? ' ' : byte);
        }
        return text;
    }

private:
    const std::uint8_t* data_;
    std::size_t size_;
    std::size_t position_ = 0;
};

} // namespace ItUnitechnik::Fuzzing
