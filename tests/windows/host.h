// What the two sources of the Windows host share: the exports it finds by
// name, the files it reads, and the calls it makes on an element and on a
// document.
#ifndef ITUNITECHNIK_TESTS_WINDOWS_HOST_H
#define ITUNITECHNIK_TESTS_WINDOWS_HOST_H

#include "itunitechnik.h"

#include <cstddef>
#include <string>

namespace ItUnitechnik::Testing {

using FreeSummaryFn = void (*)(it_char16*);

// The exports, with the types of the public header.
struct Exports {
    decltype(&::startOrder) startOrder = nullptr;
    decltype(&::endDocument) endDocument = nullptr;
    decltype(&::setProjectData) setProjectData = nullptr;
    decltype(&::setSlabInfoFields) setSlabInfoFields = nullptr;
    decltype(&::setThicknesses) setThicknesses = nullptr;
    decltype(&::setDoubleWallGap) setDoubleWallGap = nullptr;
    decltype(&::addLayer) addLayer = nullptr;
    decltype(&::addContour) addContour = nullptr;
    decltype(&::addCutout) addCutout = nullptr;
    decltype(&::addSet) addSet = nullptr;
    decltype(&::addSteelmat) addSteelmat = nullptr;
    decltype(&::addCFSRodstock) addCFSRodstock = nullptr;
    decltype(&::addStraightRodstock) addStraightRodstock = nullptr;
    decltype(&::addFreeFormRodstock) addFreeFormRodstock = nullptr;
    decltype(&::addExtIron) addExtIron = nullptr;
    decltype(&::getFullReinforcementString) getFullReinforcementString = nullptr;
    FreeSummaryFn freeFullReinforcementString = nullptr;
};

// Bytes of a file; empty when it cannot be read.
std::string ReadBytes(const std::wstring& path);
bool Exists(const std::wstring& path);

// The summary string: a COM block when there is an element, else a constant.
void CheckSummary(const Exports& dll, bool withSteelmat);

// The calls that need an element, each made only when the DLL has it, with
// the results that the calls are to give for a fresh element.
void FillElement(const Exports& dll);

// Writes the document to `name` twice and looks at its bytes.
std::string WriteDocument(const Exports& dll, const std::wstring& directory, const std::wstring& name,
                          const std::string& version, std::size_t orders);

} // namespace ItUnitechnik::Testing

#endif
