#include "itunitechnik.h"

#include "exports/document.h"
#include "framework/archive.h"
#include "framework/field_buffer.h"
#include "platform/platform.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <streambuf>

using ItUnitechnik::Archive;
using ItUnitechnik::ElementPart;
using ItUnitechnik::theDocument;

namespace {

// The results that are no block of the host's: the program's own constants.
// freeFullReinforcementString knows them and leaves them alone.
const it_char16 kEmpty[] = {0};
const it_char16 kErrorMountingParts[] = {'E', 'R', 'R', 'O', 'R', ' ', 'M', 'O', 'U', 'N', 'P', 'A', 'R', 'T', 0};
const it_char16 kErrorRodstocks[] = {'E', 'R', 'R', 'O', 'R', ' ', 'R', 'O', 'D', 'S', 'T', 'O', 'C', 'K', 0};
const it_char16 kErrorGirders[] = {'E', 'R', 'R', 'O', 'R', ' ', 'B', 'R', 'G', 'I', 'R', 'D', 'E', 'R', 0};
const it_char16 kErrorReinforcement[] = {'E', 'R', 'R', 'O', 'R', ' ', 'R', 'E', 'F', 'O', 'R', 'C', 'E', 'M', 0};
const it_char16 kErrorExternalIrons[] = {'E', 'R', 'R', 'O', 'R', ' ', 'E', 'X', 'T', 'I', 'R', 'O', 'N', '_', 0};
// The text could not be made: memory ran out on the way.
const it_char16 kErrorMemory[] = {'E', 'R', 'R', 'O', 'R', ' ', 'M', 'E', 'M', 'O', 'R', 'Y', 0};

const it_char16* const kConstants[] = {kEmpty,        kErrorMountingParts, kErrorRodstocks,
                                       kErrorGirders, kErrorReinforcement, kErrorExternalIrons,
                                       kErrorMemory};

// The host's signature hands out a writable pointer; a constant stays one.
it_char16* AsResult(const it_char16* constant)
{
    return const_cast<it_char16*>(constant);
}

// The wide stream buffer of the summary: a line ends in a line feed alone,
// and every character becomes one 16-bit unit of the host's text. The units
// go straight into the block the host is given, which doubles as the text
// grows and is cut to the text's length at the end: the text is made once,
// and an allocator that can move a large block without copying it (as
// realloc maps it anew) does not copy it at all.
class HostTextBuffer : public ItUnitechnik::FieldBuffer {
public:
    HostTextBuffer() { setp(area_, area_ + areaSize); }
    HostTextBuffer(const HostTextBuffer&) = delete;
    HostTextBuffer& operator=(const HostTextBuffer&) = delete;
    ~HostTextBuffer() override { ItUnitechnik::Platform::FreeHostBlock(block_); }

    // Memory ran out: the text stops where the block could not grow.
    bool OutOfMemory() const { return outOfMemory_; }

    // The block with the text and its terminator, of 2 * (length + 1)
    // bytes; the host owns it from here on. Null when memory ran out.
    it_char16* Take()
    {
        if (!Drain() || !Reserve(done_ + 1)) {
            return nullptr;
        }
        block_[done_] = 0;
        const std::size_t bytes = sizeof(it_char16) * (done_ + 1);
        // A block that cannot be cut keeps its length: the host frees it
        // all the same.
        if (void* const cut = ItUnitechnik::Platform::ResizeHostBlock(block_, bytes)) {
            block_ = static_cast<it_char16*>(cut);
        }
        it_char16* const block = block_;
        block_ = nullptr;
        return block;
    }

protected:
    int_type overflow(int_type c) override
    {
        if (!Drain()) {
            return traits_type::eof();
        }
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            *pptr() = traits_type::to_char_type(c);
            pbump(1);
        }
        return traits_type::not_eof(c);
    }

private:
    static constexpr std::size_t areaSize = 4096;
    static constexpr std::size_t firstCapacity = std::size_t{64} * 1024; // units

    // Room in the block for `units` units in all.
    bool Reserve(std::size_t units)
    {
        if (units <= capacity_) {
            return true;
        }
        constexpr std::size_t most = std::numeric_limits<std::size_t>::max() / (2 * sizeof(it_char16));
        std::size_t capacity = std::max(firstCapacity, capacity_);
        while (capacity < units && capacity <= most) {
            capacity *= 2;
        }
        void* const grown =
            capacity >= units ? ItUnitechnik::Platform::ResizeHostBlock(block_, sizeof(it_char16) * capacity) : nullptr;
        if (grown == nullptr) {
            outOfMemory_ = true;
            return false;
        }
        block_ = static_cast<it_char16*>(grown);
        capacity_ = capacity;
        return true;
    }

    // The put area's characters as units behind the text so far; false,
    // and nothing taken, when the block cannot hold them.
    bool Drain()
    {
        const auto count = static_cast<std::size_t>(pptr() - pbase());
        if (!Reserve(done_ + count)) {
            return false;
        }
        it_char16* const out = block_ + done_;
        for (std::size_t i = 0; i < count; ++i) {
            out[i] = static_cast<it_char16>(area_[i]);
        }
        done_ += count;
        setp(area_, area_ + areaSize);
        return true;
    }

    wchar_t area_[areaSize];
    it_char16* block_ = nullptr;
    std::size_t capacity_ = 0; // units the block holds
    std::size_t done_ = 0;     // units of text in it
    bool outOfMemory_ = false;
};

// The five records, each right behind the one before, through one stream:
// flags and fill carry over from one to the next as in the file. They write
// from the element itself, since writing changes no record. Null when all
// were written, else the error constant of the first that was not.
const it_char16* WriteSummary(ElementPart& element, std::basic_streambuf<wchar_t>& buffer)
{
    Archive ar(&buffer);
    if (!element.mountingPartData.Write(ar)) {
        return kErrorMountingParts;
    }
    if (!element.rodstockData.Write(ar)) {
        return kErrorRodstocks;
    }
    if (!element.bracedGirderData.Write(ar)) {
        return kErrorGirders;
    }
    if (!element.reinforcement.Write(ar)) {
        return kErrorReinforcement;
    }
    if (!element.externalIronData.Write(ar)) {
        return kErrorExternalIrons;
    }
    return nullptr;
}

} // namespace

extern "C" {

// Nothing thrown inside the library reaches the host: each export ends in a
// handler that gives the result the header names for that case.

ITUNITECHNIK_API it_char16* getFullReinforcementString(void)
try {
    ElementPart* element = theDocument.CurrentElement();
    if (element == nullptr) {
        return AsResult(kEmpty);
    }
    HostTextBuffer text;
    if (const it_char16* error = WriteSummary(*element, text)) {
        return AsResult(text.OutOfMemory() ? kErrorMemory : error);
    }
    it_char16* const block = text.Take();
    return block != nullptr ? block : AsResult(kErrorMemory);
} catch (...) {
    return AsResult(kErrorMemory);
}

ITUNITECHNIK_API void freeFullReinforcementString(it_char16* text)
try {
    if (text == nullptr) {
        return;
    }
    for (const it_char16* constant : kConstants) {
        if (text == constant) {
            return;
        }
    }
    ItUnitechnik::Platform::FreeHostBlock(text);
} catch (...) {
    // Nothing to report: the call ends here.
}

} // extern "C"
