// A Windows host in miniature: it loads the DLL by its path with LoadLibraryW,
// finds every export by name with GetProcAddress, drives each one the DLL
// has, writes documents of several versions, looks at their bytes, and gives
// the reinforcement summary blocks back to the COM allocator.
//
//   itunitechnik_host DLL EXPORT-LIST OUTPUT-DIRECTORY
//
// Every name of EXPORT-LIST must be found in the DLL; the exports that the
// list does not name yet are passed over if the DLL lacks them.

#include "checks.h"
#include "itunitechnik.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#include <objbase.h>

#include <cstdio>
#include <cstring>
#include <cwchar>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using ItUnitechnik::Testing::Check;
using ItUnitechnik::Testing::failed;
using ItUnitechnik::Testing::Narrow;
using ItUnitechnik::Testing::passed;

namespace {

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

std::vector<std::string> ReadNames(const std::wstring& path)
{
    std::vector<std::string> names;
    std::istringstream lines(ReadBytes(path));
    std::string line;
    while (std::getline(lines, line)) {
        while (!line.empty() && (line.back() == '\r' || line.back() == ' ')) {
            line.pop_back();
        }
        if (!line.empty()) {
            names.push_back(line);
        }
    }
    return names;
}

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

class Resolver {
public:
    Resolver(HMODULE module, std::vector<std::string> required) : module_(module), required_(std::move(required)) {}

    template <typename F>
    void operator()(const char* name, F& into)
    {
        const FARPROC found = ::GetProcAddress(module_, name);
        // Through the plain function pointer type, as a host does with the
        // result of GetProcAddress.
        into = reinterpret_cast<F>(reinterpret_cast<void (*)()>(found));
        bool isRequired = false;
        for (const std::string& listed : required_) {
            isRequired = isRequired || listed == name;
        }
        if (isRequired) {
            Check(found != nullptr, std::string("the DLL exports ") + name);
        } else if (found == nullptr) {
            std::printf("        %s is not exported yet\n", name);
        }
        resolved_ += found != nullptr ? 1 : 0;
    }

    int Resolved() const { return resolved_; }

private:
    HMODULE module_;
    std::vector<std::string> required_;
    int resolved_ = 0;
};

const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};

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

} // namespace

int wmain(int argc, wchar_t** argv)
{
    if (argc != 4) {
        std::fprintf(stderr, "usage: itunitechnik_host DLL EXPORT-LIST OUTPUT-DIRECTORY\n");
        return 2;
    }
    const std::wstring directory = argv[3];
    ::CreateDirectoryW(directory.c_str(), nullptr);
    const std::vector<std::string> required = ReadNames(argv[2]);
    Check(!required.empty(), "the export list names the exports");

    const HMODULE module = ::LoadLibraryW(argv[1]);
    Check(module != nullptr, "LoadLibraryW loads " + Narrow(argv[1]));
    if (module == nullptr) {
        std::printf("%d passed, %d failed\n", passed, failed);
        return 1;
    }

    Exports dll;
    Resolver resolve(module, required);
    resolve("startOrder", dll.startOrder);
    resolve("endDocument", dll.endDocument);
    resolve("setProjectData", dll.setProjectData);
    resolve("setSlabInfoFields", dll.setSlabInfoFields);
    resolve("setThicknesses", dll.setThicknesses);
    resolve("setDoubleWallGap", dll.setDoubleWallGap);
    resolve("addLayer", dll.addLayer);
    resolve("addContour", dll.addContour);
    resolve("addCutout", dll.addCutout);
    resolve("addSet", dll.addSet);
    resolve("addSteelmat", dll.addSteelmat);
    resolve("addCFSRodstock", dll.addCFSRodstock);
    resolve("addStraightRodstock", dll.addStraightRodstock);
    resolve("addFreeFormRodstock", dll.addFreeFormRodstock);
    resolve("addExtIron", dll.addExtIron);
    resolve("getFullReinforcementString", dll.getFullReinforcementString);
    resolve("freeFullReinforcementString", dll.freeFullReinforcementString);
    Check(resolve.Resolved() >= static_cast<int>(required.size()), "every listed export is found by name");
    Check(::GetProcAddress(module, "DllMain") == nullptr, "the entry point is not exported");

    if (dll.startOrder != nullptr && dll.endDocument != nullptr) {
        // A fresh library holds no order.
        if (dll.getFullReinforcementString != nullptr) {
            it_char16* empty = dll.getFullReinforcementString();
            Check(empty != nullptr && empty[0] == 0, "with no order the summary is the empty constant, not a block");
            if (dll.freeFullReinforcementString != nullptr && empty != nullptr) {
                // The free export knows the constant and leaves it alone: it is
                // still there, the same, on the next call.
                dll.freeFullReinforcementString(empty);
                dll.freeFullReinforcementString(nullptr);
                it_char16* again = dll.getFullReinforcementString();
                Check(again == empty && again[0] == 0, "freeFullReinforcementString leaves the empty constant alone");
                dll.freeFullReinforcementString(again);
            }
        }
        const int32_t position[3] = {1, 2, 3};
        if (dll.addSteelmat != nullptr) {
            Check(dll.addSteelmat(L"None", 1, 1, 0, 0, 0, position) == 0, "addSteelmat with no order gives 0");
        }
        if (dll.addExtIron != nullptr) {
            Check(dll.addExtIron(1, 1, 1.0, L"None") == 0, "addExtIron with no order gives 0");
        }
        if (dll.addSet != nullptr) {
            const int32_t values[2] = {0, 0};
            Check(dll.addSet(3, L"None", 2, values) == 0, "addSet with no order gives 0");
        }
        const std::wstring emptyPath = directory + L"\\empty.txt";
        Check(dll.endDocument(emptyPath.c_str()) == 1 && Exists(emptyPath) && ReadBytes(emptyPath).empty(),
              "endDocument with no order writes an empty file and gives 1");
        const std::wstring missingPath = directory + L"\\missing\\file.txt";
        Check(dll.endDocument(missingPath.c_str()) == 1 && !Exists(missingPath),
              "endDocument into a missing folder gives 1 and writes nothing");

        // Version 600, every export the DLL has.
        Check(dll.startOrder(7, 101, placement, 600, L"Floor slab", 1.25, true) == 1, "startOrder gives 1");
        FillElement(dll);
        CheckSummary(dll, dll.addSteelmat != nullptr);
        const std::string full = WriteDocument(dll, directory, L"host-600.txt", "600", 1);
        if (dll.setProjectData != nullptr) {
            // Text(20), blank, Text(5), blank, Text(4), blank, RText(8),
            // blank, UInt(2), blank, RText(2).
            const std::string orderLine = "4711" + std::string(16, ' ') + " " + "T5   " + " " + "T4  " + " " +
                                          "      T8" + " " + "07" + " " + "X2";
            Check(full.find("\r\n" + orderLine + "\r\n") != std::string::npos,
                  "host-600.txt: the order's line holds the host's texts");
        }

        // The older layouts, one order each, and two orders in one document.
        const std::pair<uint16_t, const wchar_t*> versions[] = {
            {502, L"host-502.txt"}, {501, L"host-501.txt"}, {503, L"host-503.txt"}, {5, L"host-5.txt"}};
        for (const auto& [version, name] : versions) {
            Check(dll.startOrder(3, 102, placement, version, L"Wall", 0.5, true) == 1,
                  "startOrder of version " + std::to_string(version) + " gives 1");
            FillElement(dll);
            CheckSummary(dll, false);
            char number[8];
            std::snprintf(number, sizeof number, "%03u", static_cast<unsigned>(version));
            WriteDocument(dll, directory, name, number, 1);
        }
        Check(dll.startOrder(1, 201, placement, 502, L"First", 0, true) == 1 &&
                  dll.startOrder(2, 202, placement, 600, L"Second", 0, false) == 1,
              "two orders in one document");
        FillElement(dll);
        WriteDocument(dll, directory, L"host-two.txt", "502", 2);
    }

    Check(::FreeLibrary(module) != 0, "FreeLibrary unloads the DLL");
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}
