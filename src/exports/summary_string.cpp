#include "itunitechnik.h"

#include "exports/document.h"
#include "framework/archive.h"
#include "framework/field_buffer.h"
#include "platform/platform.h"

#include <algorithm>
#include <cstddef>
#include <new>
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

// The wide stream buffers of the summary: a line ends in a line feed alone,
// and every character becomes one 16-bit unit of the host's text. The text
// is made twice: once to count its units, then straight into a block of just
// that size, so that it is neither held a second time nor copied.
class CountingBuffer : public ItUnitechnik::FieldBuffer {
public:
    CountingBuffer() { setp(area_, area_ + areaSize); }

    std::size_t Count() const { return counted_ + static_cast<std::size_t>(pptr() - pbase()); }

protected:
    int_type overflow(int_type c) override
    {
        counted_ += static_cast<std::size_t>(pptr() - pbase());
        setp(area_, area_ + areaSize);
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            *pptr() = traits_type::to_char_type(c);
            pbump(1);
        }
        return traits_type::not_eof(c);
    }

private:
    static constexpr std::size_t areaSize = 4096;
    wchar_t area_[areaSize];
    std::size_t counted_ = 0;
};

class BlockBuffer : public ItUnitechnik::FieldBuffer {
public:
    // A block for `count` units and the terminator.
    explicit BlockBuffer(std::size_t count) : count_(count)
    {
        block_ = static_cast<it_char16*>(ItUnitechnik::Platform::AllocateHostBlock(sizeof(it_char16) * (count + 1)));
        if (block_ == nullptr) {
            // The export's handler gives the host "ERROR MEMORY".
            throw std::bad_alloc();
        }
        setp(area_, area_ + areaSize);
    }
    BlockBuffer(const BlockBuffer&) = delete;
    BlockBuffer& operator=(const BlockBuffer&) = delete;
    ~BlockBuffer() override { ItUnitechnik::Platform::FreeHostBlock(block_); }

    // The block with the text and its terminator; the host owns it from
    // here on.
    it_char16* Take()
    {
        Drain();
        block_[done_] = 0;
        it_char16* block = block_;
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

    // The put area's characters as units behind the text so far; false,
    // and nothing more taken, once the block is full.
    bool Drain()
    {
        const std::size_t count = std::min(static_cast<std::size_t>(pptr() - pbase()), count_ - done_);
        for (std::size_t i = 0; i < count; ++i) {
            block_[done_ + i] = static_cast<it_char16>(area_[i]);
        }
        const bool all = count == static_cast<std::size_t>(pptr() - pbase());
        done_ += count;
        setp(area_, area_ + areaSize);
        return all;
    }

    wchar_t area_[areaSize];
    it_char16* block_ = nullptr;
    std::size_t count_;
    std::size_t done_ = 0;
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
    CountingBuffer counting;
    if (const it_char16* error = WriteSummary(*element, counting)) {
        return AsResult(error);
    }
    BlockBuffer block(counting.Count());
    if (const it_char16* error = WriteSummary(*element, block)) {
        return AsResult(error);
    }
    return block.Take();
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
