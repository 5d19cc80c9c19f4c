// The Windows host's work on an element and a document: it fills the element
// through every export the DLL has, looks at the reinforcement summary and
// gives its blocks back to the COM allocator, and writes the document and
// looks at its bytes.

#include "checks.h"
#include "host.h"
#include "itunitechnik.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <objbase.h>

#include <cstddef>
#include <cstdio>
#include <cwchar>
#include <string>

namespace ItUnitechnik::Testing {
namespace {

// Every line feed has its carriage return in front and every carriage return
// its line feed behind, and the last line is ended.
bool CrLfOnly(const std::string& bytes)
{
    if (bytes.size() < 2 || bytes.compare(bytes.size() - 2, 2, "\r\n") != 0) {
        return false;
    }
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) {
            return false;
        }
        if (bytes[i] == '\r' && (i + 1 == bytes.size() || bytes[i + 1] != '\n')) {
            return false;
        }
    }
    return true;
}

bool StartsWith(const std::string& text, const std::string& start)
{
    return text.compare(0, start.size(), start) == 0;
}

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

std::size_t Count(const std::string& text, const std::string& what)
{
    std::size_t count = 0;
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + 1)) {
        ++count;
    }
    return count;
}

} // namespace

std::string ReadBytes(const std::wstring& path)
{
    std::string bytes;
    FILE* file = _wfopen(path.c_str(), L"rb");
    if (file == nullptr) {
        return bytes;
    }
    char buffer[4096];
    std::size_t got = 0;
    while ((got = std::fread(buffer, 1, sizeof buffer, file)) > 0) {
        bytes.append(buffer, got);
    }
    std::fclose(file);
    return bytes;
}

bool Exists(const std::wstring& path)
{
    return ::GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

// The summary string: a COM block when there is an element, else a constant.
void CheckSummary(const Exports& dll, bool withSteelmat)
{
    if (dll.getFullReinforcementString == nullptr) {
        return;
    }
    it_char16* first = dll.getFullReinforcementString();
    it_char16* second = dll.getFullReinforcementString();
    Check(first != nullptr && second != nullptr && first[0] != 0 && second[0] != 0,
          "getFullReinforcementString gives a text for an element");
    if (first == nullptr || second == nullptr || first[0] == 0 || second[0] == 0) {
        return;
    }
    const std::wstring text(first);
    Check(first != second && text == std::wstring(second), "two calls give two blocks with equal texts");
    const std::string narrow = Narrow(text);
    Check(text.find(L'\r') == std::wstring::npos && EndsWith(narrow, "\n"),
          "the summary's lines end in a single line feed");
    const std::size_t mounting = narrow.find("MOUNPART\n");
    const std::size_t rodstock = narrow.find("\nRODSTOCK\n");
    const std::size_t girder = narrow.find("\nBRGIRDER\n");
    const std::size_t reinforcement = narrow.find("\nREFORCEM\n");
    const std::size_t irons = narrow.find("\nEXTIRON_\n");
    Check(mounting == 0 && rodstock != std::string::npos && girder != std::string::npos &&
              reinforcement != std::string::npos && irons != std::string::npos && mounting < rodstock &&
              rodstock < girder && girder < reinforcement && reinforcement < irons,
          "the summary holds its five records in their order");
    if (withSteelmat) {
        const std::size_t mat = narrow.find("\nSTEELMAT\n");
        Check(mat != std::string::npos && reinforcement < mat && mat < irons,
              "the mat shows inside the reinforcement record of the summary");
    }

    // The blocks belong to the COM task allocator, which takes them back.
    IMalloc* allocator = nullptr;
    if (SUCCEEDED(::CoGetMalloc(1, &allocator)) && allocator != nullptr) {
        Check(allocator->DidAlloc(first) == 1 && allocator->DidAlloc(second) == 1,
              "the summary blocks come from the COM task allocator");
        allocator->Release();
    } else {
        Check(false, "CoGetMalloc gives the task allocator");
    }
    ::CoTaskMemFree(first);
    if (dll.freeFullReinforcementString != nullptr) {
        dll.freeFullReinforcementString(second);
    } else {
        ::CoTaskMemFree(second);
    }
}

// The calls that need an element, each made only when the DLL has it, with
// the results that the calls are to give for a fresh element.
void FillElement(const Exports& dll)
{
    if (dll.setProjectData != nullptr) {
        const it_char16* texts[IT_PROJECT_TEXT_COUNT] = {
            L"4711",      L"T5",         L"T4",         L"T8",    L"Project 1", L"Project 2",  L"Project 3",
            L"Project 4", L"Street 1",   L"Town",       L"12345", L"Country",   L"Plant road", L"Plant town",
            L"54321",     L"Plant land", L"07.03.2024", L"X2",    L"Forty"};
        dll.setProjectData(texts);
    }
    if (dll.setSlabInfoFields != nullptr) {
        dll.setSlabInfoFields(L"Info one", L"Info two", L"Info three", L"Info four");
    }
    if (dll.setThicknesses != nullptr) {
        dll.setThicknesses(200, 150);
    }
    if (dll.setDoubleWallGap != nullptr) {
        dll.setDoubleWallGap(60);
    }
    if (dll.addLayer != nullptr) {
        dll.addLayer(1, 0.0625, 2.5, 0.4, L"Concrete C30/37");
        dll.addLayer(2, 0.0625, 1.0, 1.0, L"Topping");
    }
    if (dll.addContour != nullptr) {
        const int32_t rectangle[10] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
        dll.addContour(5, rectangle);
    }
    if (dll.addCutout != nullptr) {
        const int32_t opening[10] = {1000, 500, 1800, 500, 1800, 1500, 1000, 1500, 1000, 500};
        ItCutoutBlock block{};
        block.cutoutName = L"Window";
        block.cutoutValue = 0.8;
        block.pointCount = 5;
        dll.addCutout(&block, opening);
    }
    if (dll.addSet != nullptr) {
        const int32_t part[6] = {11, 22, 0, 0, 3000, 2000};
        Check(dll.addSet(4, L"Nothing", 6, part) == 0, "addSet of an unknown kind gives 0");
        Check(dll.addSet(3, L"Socket", 6, part) == 1, "addSet of a mounted part gives 1");
        const int32_t girders[20] = {1, 80, 500, 300, 60, 0, 7, 8, 1250, 9, 2, 90, 1500, 300, 60, 90, 7, 8, 2500, 9};
        Check(dll.addSet(5, L"Girder", 20, girders) == 1, "addSet of two girders gives 1");
    }
    const int32_t position[3] = {100, 200, 30};
    if (dll.addCFSRodstock != nullptr) {
        Check(dll.addCFSRodstock(1, L"Early", 10, 2000, 0, position, 30, 0, L"", 1, 0, 0, 0, 110) == -1,
              "addCFSRodstock before any mat gives -1");
    }
    if (dll.addSteelmat != nullptr) {
        Check(dll.addSteelmat(L"Mat A", 6000, 2400, 1, 0, 2, position) == 1, "the first mat gets the number 1");
        if (dll.addCFSRodstock != nullptr) {
            Check(dll.addCFSRodstock(1, L"Bar", 10, 2000, 0, position, 30, 0, L"Extra", 1, 3, 4, 5, 110) == 1,
                  "the first bar of the first mat gets the number 1");
        }
        Check(dll.addSteelmat(L"Mat B", 6000, 2400, 0, 1, 2, position) == 2, "the second mat gets the number 2");
        if (dll.addCFSRodstock != nullptr) {
            Check(dll.addCFSRodstock(2, L"Bar", 12, 2400, 0, position, 40, 90, L"", 0, 0, 0, 0, 20) == 1,
                  "a bar goes into the last mat and is numbered there from 1");
            Check(dll.addCFSRodstock(2, L"Bar", 12, 2400, 0, position, 40, 90, L"", 0, 0, 0, 0, 200) == 2,
                  "the next bar of the last mat gets the number 2");
        }
    }
    ItBarBlock bar{};
    bar.extraDesignation = L"Free";
    bar.designation = L"Straight";
    bar.auxFourth = 4;
    bar.auxFifth = 5;
    bar.auxSixth = 6;
    bar.thirdSize = 0;
    bar.positionX = 500;
    bar.positionY = 600;
    bar.positionZ = 40;
    bar.firstSize = 8;
    bar.secondSize = 1500;
    bar.rotation = -90;
    bar.auxFirst = 1;
    bar.rodKind = 3;
    if (dll.addStraightRodstock != nullptr) {
        dll.addStraightRodstock(&bar);
    }
    if (dll.addFreeFormRodstock != nullptr) {
        const ItFreeFormSegment segments[7] = {{100, 0, {0, 0}},  {200, 90, {0, 0}}, {300, -90, {0, 0}},
                                               {400, 45, {0, 0}}, {500, 0, {0, 0}},  {600, 135, {0, 0}},
                                               {700, -45, {0, 0}}};
        bar.segmentCount = 7;
        bar.bendingCode = 2;
        bar.notMounted = 1;
        dll.addFreeFormRodstock(&bar, segments);
    }
    if (dll.addExtIron != nullptr) {
        Check(dll.addExtIron(5, 2, 1.5, L"Anchor") == 1, "the first iron gets the number 1");
        Check(dll.addExtIron(6, 4, 0.25, L"Lifting loop") == 2, "the second iron gets the number 2");
    }
}

// Writes the document to `name` twice and looks at its bytes.
std::string WriteDocument(const Exports& dll, const std::wstring& directory, const std::wstring& name,
                          const std::string& version, std::size_t orders)
{
    const std::wstring path = directory + L"\\" + name;
    const std::string label = Narrow(name);
    Check(dll.endDocument(path.c_str()) == 1, label + ": endDocument gives 1");
    const std::string bytes = ReadBytes(path);
    Check(CrLfOnly(bytes), label + ": every line ends in CR LF");
    Check(StartsWith(bytes, "HEADER__\r\n" + version + "\r\n"),
          label + ": the file starts with the order's tag and version " + version);
    Check(EndsWith(bytes, "END HEADER__\r\n"), label + ": the file ends with the order's end tag");
    Check(Count(bytes, "HEADER__\r\n") == 2 * orders && Count(bytes, "END HEADER__\r\n") == orders,
          label + ": the file holds " + std::to_string(orders) + " order(s)");
    // Through the exports the forty-character text stays blank: no stream.
    bool noStream = true;
    for (std::size_t n = 0; n <= orders; ++n) {
        noStream = noStream && !Exists(path + L":order" + std::to_wstring(n));
    }
    Check(noStream, label + ": no alternate stream is written for a blank text");
    Check(dll.endDocument(path.c_str()) == 1 && ReadBytes(path) == bytes, label + ": written again, the same bytes");
    return bytes;
}

} // namespace ItUnitechnik::Testing
