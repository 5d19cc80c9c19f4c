#include "itunitechnik.h"

#include "exports/document.h"
#include "framework/archive.h"
#include "platform/platform.h"

#include <cstddef>
#include <cstring>
#include <exception>
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

const it_char16* const kConstants[] = {kEmpty, kErrorMountingParts, kErrorRodstocks,
                                       kErrorGirders, kErrorReinforcement, kErrorExternalIrons};

// The host's signature hands out a writable pointer; a constant stays one.
it_char16* AsResult(const it_char16* constant)
{
    return const_cast<it_char16*>(constant);
}

// The wide stream buffer of the summary: every character is kept as one
// 16-bit unit of the host's text, and a line ends in a line feed alone. The
// characters collect in a put area and go on to the text when it is full and
// at the end.
class SummaryBuffer : public std::basic_streambuf<wchar_t> {
public:
    SummaryBuffer() { setp(area_, area_ + areaSize); }

    // The text so far, with what stands in the put area.
    const std::vector<it_char16>& Text()
    {
        Drain();
        return text_;
    }

protected:
    int_type overflow(int_type c) override
    {
        Drain();
        if (!traits_type::eq_int_type(c, traits_type::eof())) {
            *pptr() = traits_type::to_char_type(c);
            pbump(1);
        }
        return traits_type::not_eof(c);
    }

private:
    static constexpr std::size_t areaSize = 4096;

    void Drain()
    {
        const std::size_t start = text_.size();
        const std::size_t count = static_cast<std::size_t>(pptr() - pbase());
        text_.resize(start + count);
        for (std::size_t i = 0; i < count; ++i) {
            text_[start + i] = static_cast<it_char16>(pbase()[i]);
        }
        setp(area_, area_ + areaSize);
    }

    wchar_t area_[areaSize];
    std::vector<it_char16> text_;
};

// The text in a block the host owns, with the terminator behind it: the one
// copy the text goes through.
it_char16* ToHostBlock(const std::vector<it_char16>& text)
{
    void* block = ItUnitechnik::Platform::AllocateHostBlock(sizeof(it_char16) * (text.size() + 1));
    if (block == nullptr) {
        // There is no result that could say so: the process ends, as a
        // bounded copy into no memory would end it.
        std::terminate();
    }
    it_char16* out = static_cast<it_char16*>(block);
    if (!text.empty()) {
        std::memcpy(out, text.data(), sizeof(it_char16) * text.size());
    }
    out[text.size()] = 0;
    return out;
}

} // namespace

extern "C" {

ITUNITECHNIK_API it_char16* getFullReinforcementString(void)
{
    ElementPart* element = theDocument.CurrentElement();
    if (element == nullptr) {
        return AsResult(kEmpty);
    }
    // The five records write from the element itself: writing changes no
    // record, so no copy of a list is needed to leave the element as it is.
    // One stream for all five: flags and fill carry over from one to the
    // next as in the file, and each line ends in a bare line feed.
    SummaryBuffer buffer;
    Archive ar(&buffer);
    if (!element->mountingPartData.Write(ar)) {
        return AsResult(kErrorMountingParts);
    }
    if (!element->rodstockData.Write(ar)) {
        return AsResult(kErrorRodstocks);
    }
    if (!element->bracedGirderData.Write(ar)) {
        return AsResult(kErrorGirders);
    }
    if (!element->reinforcement.Write(ar)) {
        return AsResult(kErrorReinforcement);
    }
    if (!element->externalIronData.Write(ar)) {
        return AsResult(kErrorExternalIrons);
    }
    return ToHostBlock(buffer.Text());
}

ITUNITECHNIK_API void freeFullReinforcementString(it_char16* text)
{
    if (text == nullptr) {
        return;
    }
    for (const it_char16* constant : kConstants) {
        if (text == constant) {
            return;
        }
    }
    ItUnitechnik::Platform::FreeHostBlock(text);
}

} // extern "C"
