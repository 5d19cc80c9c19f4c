#include "itunitechnik.h"

#include "exports/document.h"
#include "framework/archive.h"
#include "framework/field_buffer.h"
#include "platform/platform.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <new>
#include <streambuf>
#include <vector>

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
// and every character becomes one 16-bit unit of the host's text. The text is
// made once, into pieces that never move, each twice the size of the one
// before; at the end it is copied once into a block of just its length.
class HostTextBuffer : public ItUnitechnik::FieldBuffer {
public:
    HostTextBuffer() { setp(area_, area_ + areaSize); }

    // Memory ran out while the text was made: it stops where no piece
    // could be had.
    bool OutOfMemory() const { return outOfMemory_; }

    // A block with the text and its terminator, of 2 * (length + 1) bytes;
    // the host owns it. Null when memory ran out.
    it_char16* Take()
    {
        if (!Drain()) {
            return nullptr;
        }
        std::size_t length = 0;
        for (const Piece& piece : pieces_) {
            length += piece.used;
        }
        auto* const block =
            static_cast<it_char16*>(ItUnitechnik::Platform::AllocateHostBlock(sizeof(it_char16) * (length + 1)));
        if (block == nullptr) {
            return nullptr;
        }
        it_char16* out = block;
        for (const Piece& piece : pieces_) {
            out = std::copy(piece.units.get(), piece.units.get() + piece.used, out);
        }
        *out = 0;
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
    static constexpr std::size_t firstPieceSize = std::size_t{64} * 1024; // units

    struct Piece {
        std::unique_ptr<it_char16[]> units;
        std::size_t size;
        std::size_t used;
    };

    // The put area's characters as units behind the text so far; false,
    // with the text cut there, when memory runs out.
    bool Drain()
    {
        const wchar_t* from = area_;
        const wchar_t* const last = pptr();
        setp(area_, area_ + areaSize);
        while (from != last) {
            if (pieces_.empty() || pieces_.back().used == pieces_.back().size) {
                const std::size_t size = pieces_.empty() ? firstPieceSize : 2 * pieces_.back().size;
                try {
                    // Left as they come: only what the text fills is touched.
                    pieces_.push_back(Piece{std::unique_ptr<it_char16[]>(new it_char16[size]), size, 0});
                } catch (const std::bad_alloc&) {
                    outOfMemory_ = true;
                    return false;
                }
            }
            Piece& piece = pieces_.back();
            const std::size_t count = std::min(static_cast<std::size_t>(last - from), piece.size - piece.used);
            it_char16* const out = piece.units.get() + piece.used;
            for (std::size_t i = 0; i < count; ++i) {
                out[i] = static_cast<it_char16>(from[i]);
            }
            piece.used += count;
            from += count;
        }
        return true;
    }

    wchar_t area_[areaSize];
    std::vector<Piece> pieces_;
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
