// A Windows host in miniature: it loads the DLL by its path with LoadLibraryW,
// finds every export by name with GetProcAddress, drives each one the DLL
// has, writes documents of several versions, looks at their bytes, and gives
// the reinforcement summary blocks back to the COM allocator.
//
//   itunitechnik_host DLL EXPORT-LIST OUTPUT-DIRECTORY
//
// Every name of EXPORT-LIST must be found in the DLL; the exports that the
// list does not name yet are passed over if the DLL lacks them. What the host
// does with an element and a document stands in host_document.cpp.

#include "host.h"
#include "checks.h"
#include "itunitechnik.h"

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <cstdio>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

using ItUnitechnik::Testing::Check;
using ItUnitechnik::Testing::CheckSummary;
using ItUnitechnik::Testing::Exists;
using ItUnitechnik::Testing::Exports;
using ItUnitechnik::Testing::failed;
using ItUnitechnik::Testing::FillElement;
using ItUnitechnik::Testing::Narrow;
using ItUnitechnik::Testing::passed;
using ItUnitechnik::Testing::ReadBytes;
using ItUnitechnik::Testing::WriteDocument;

namespace {

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
