#include "itunitechnik.h"

#include "exports/document.h"
#include "framework/archive.h"
#include "platform/platform.h"

#include <new>
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
// The text could not be made: memory ran out on the way.
const it_char16 kErrorMemory[] = {'E', 'R', 'R', 'O', 'R', ' ', 'M', 'E', 'M', 'O', 'R', 'Y', 0};

const it_char16* const kConstants[] = {kEmpty, kErrorMountingParts, kErrorRodstocks,
                                       kErrorGirders, kErrorReinforcement, kErrorExternalIrons,
                                       kErrorMemory};

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
        throw std::bad_alloc();
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

// Nothing thrown inside the library reaches the host: each export ends in a
// handler that gives the result the header names for that case.

ITUNITECHNIK_API it_char16* getFullReinforcementString(void)
try {
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
