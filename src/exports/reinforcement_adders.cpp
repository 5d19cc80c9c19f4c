#include "itunitechnik.h"

#include "exports/document.h"
#include "exports/host_text.h"

#include <utility>
#include <vector>

using ItUnitechnik::BendingFormSegment;
using ItUnitechnik::ElementPart;
using ItUnitechnik::ExternalIron;
using ItUnitechnik::FromHost;
using ItUnitechnik::OnCurrentElement;
using ItUnitechnik::Point2d;
using ItUnitechnik::Reinforcement;
using ItUnitechnik::Rodstock;
using ItUnitechnik::theDocument;

namespace {

// The cells of the bar block that both bar exports read.
void FillCommonCells(Rodstock& bar, const ItBarBlock& block)
{
    bar.designation = FromHost(block.designation);
    bar.auxSixth = block.auxSixth;
    bar.thirdSize = block.thirdSize;
    bar.position = Point2d(block.positionX, block.positionY);
    bar.positionZ = block.positionZ;
    bar.firstSize = block.firstSize;
    bar.secondSize = block.secondSize;
    bar.rotation = block.rotation;
    bar.rodKind = block.rodKind;
}

} // namespace

extern "C" {

// Nothing thrown inside the library reaches the host: each export ends in a
// handler that gives the result the header names for that case, its own or
// that of OnCurrentElement.

ITUNITECHNIK_API int32_t addSteelmat(const it_char16* name, int32_t firstDimension, int32_t secondDimension,
                                     int32_t firstFlag, int32_t secondFlag, int32_t matKind, const int32_t* position)
{
    return OnCurrentElement<int32_t>(0, 0, [&](ElementPart& element) -> int32_t {
        element.reinforcement.present = true;
        element.reinforcement.matFlag = 1;
        const int16_t number = element.reinforcement.appendSteelmat(FromHost(name), firstDimension, secondDimension,
                                                                    firstFlag, secondFlag, matKind, position);
        element.updateExtents();
        return number;
    });
}

ITUNITECHNIK_API int32_t addCFSRodstock(int32_t rodKind, const it_char16* designation, int32_t firstSize,
                                        int32_t secondSize, int32_t thirdSize, const int32_t* position,
                                        int32_t positionZ, int32_t rotation, const it_char16* extraDesignation,
                                        int32_t mountFlag, int32_t auxFirst, int32_t auxFourth, int32_t auxFifth,
                                        int32_t flagsCode)
{
    return OnCurrentElement<int32_t>(0, -1, [&](ElementPart& element) -> int32_t {
        Rodstock bar(element.version);
        bar.rodKind = rodKind;
        bar.designation = FromHost(designation);
        bar.firstSize = firstSize;
        bar.secondSize = secondSize;
        bar.thirdSize = thirdSize;
        bar.position = Point2d(position[0], position[1]);
        bar.auxSixth = position[2];
        bar.positionZ = positionZ;
        bar.rotation = rotation;
        bar.extraDesignation = FromHost(extraDesignation);
        bar.mountFlag = mountFlag == 1;
        bar.auxFirst = auxFirst;
        bar.auxFourth = auxFourth;
        bar.auxFifth = auxFifth;
        bar.applyFlagsCode(flagsCode);

        Reinforcement& reinforcement = element.reinforcement;
        if (!reinforcement.present) {
            // No reinforcement block: the bar goes nowhere, and no extents are
            // taken either.
            return -1;
        }
        int32_t result = -1;
        if (!reinforcement.mats.empty()) {
            // A bar always joins the mat added last; its list numbers it.
            auto& mat = reinforcement.mats.back();
            bar.version = mat.version;
            mat.rodstocks.appendRodstock(bar);
            result = bar.number;
        }
        element.updateExtents();
        return result;
    });
}

ITUNITECHNIK_API void addStraightRodstock(const ItBarBlock* block)
{
    OnCurrentElement([&](ElementPart& element) {
        // The free-form cells are not read: a straight bar keeps the defaults.
        Rodstock bar(element.version);
        FillCommonCells(bar, *block);
        element.appendRodstock(std::move(bar));
    });
}

ITUNITECHNIK_API void addFreeFormRodstock(const ItBarBlock* block, const ItFreeFormSegment* segments)
{
    OnCurrentElement([&](ElementPart& element) {
        Rodstock bar(element.version);
        bar.extraDesignation = FromHost(block->extraDesignation);
        bar.auxFourth = block->auxFourth;
        bar.auxFifth = block->auxFifth;
        FillCommonCells(bar, *block);
        bar.auxFirst = block->auxFirst;
        // The host's byte says "not mounted".
        bar.mountFlag = block->notMounted == 0;
        // Any code passes: one the record does not know is written as it is and
        // behaves as no bending data.
        bar.bendingKind = static_cast<wchar_t>(L'0' + block->bendingCode);
        if (block->bendingCode == 2) {
            std::vector<BendingFormSegment> entries;
            entries.reserve(block->segmentCount);
            for (uint16_t i = 0; i < block->segmentCount; ++i) {
                entries.emplace_back(segments[i].length, segments[i].angle);
            }
            bar.freeForm.buildFromSegments(entries);
        }
        element.appendRodstock(std::move(bar));
    });
}

ITUNITECHNIK_API int32_t addExtIron(int32_t ironCode, int32_t ironCount, double ironValue, const it_char16* ironText)
{
    return OnCurrentElement<int32_t>(0, 0, [&](ElementPart& element) -> int32_t {
        ExternalIron iron;
        iron.ironCode = ironCode;
        iron.ironCount = ironCount;
        iron.ironValue = ironValue;
        iron.ironText = FromHost(ironText);
        // Straight into the list: no hook, and the extents are left as they are.
        element.externalIronData.appendIron(iron);
        return iron.ironNumber;
    });
}

} // extern "C"
