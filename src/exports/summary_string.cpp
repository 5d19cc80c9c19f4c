#include "itunitechnik.h"

#include "exports/document.h"
#include "framework/archive.h"
#include "platform/platform.h"

#include <exception>
#include <sstream>
#include <string>

using ItUnitechnik::Archive;
using ItUnitechnik::BracedGirderData;
using ItUnitechnik::ElementPart;
using ItUnitechnik::ExternalIronData;
using ItUnitechnik::MountingPartData;
using ItUnitechnik::RodstockData;
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

// The text in a block the host owns: each wide character is one 16-bit
// unit, with the terminator behind it.
it_char16* ToHostBlock(const std::wstring& text)
{
    void* block = ItUnitechnik::Platform::AllocateHostBlock(sizeof(it_char16) * (text.size() + 1));
    if (block == nullptr) {
        // There is no result that could say so: the process ends, as a
        // bounded copy into no memory would end it.
        std::terminate();
    }
    it_char16* out = static_cast<it_char16*>(block);
    for (std::size_t i = 0; i < text.size(); ++i) {
        out[i] = static_cast<it_char16>(text[i]);
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
    // Copies of the lists with their versions, so that writing leaves the
    // element as it is; the reinforcement block writes from the element
    // itself.
    MountingPartData mountingParts(element->mountingPartData);
    RodstockData rodstocks(element->rodstockData);
    BracedGirderData girders(element->bracedGirderData);
    ExternalIronData irons(element->externalIronData);

    // One stream for all five records: flags and fill carry over from one to
    // the next as in the file, and each line ends in a bare line feed.
    std::basic_stringbuf<wchar_t> buffer;
    Archive ar(&buffer);
    if (!mountingParts.Write(ar)) {
        return AsResult(kErrorMountingParts);
    }
    if (!rodstocks.Write(ar)) {
        return AsResult(kErrorRodstocks);
    }
    if (!girders.Write(ar)) {
        return AsResult(kErrorGirders);
    }
    if (!element->reinforcement.Write(ar)) {
        return AsResult(kErrorReinforcement);
    }
    if (!irons.Write(ar)) {
        return AsResult(kErrorExternalIrons);
    }
    return ToHostBlock(buffer.str());
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
