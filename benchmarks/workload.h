#pragma once

#include "itunitechnik.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// What the benchmarks feed the library: a host's data, built once, handed in
// through the exports exactly as a design application would.
namespace ItUnitechnik::Bench {

// A closed outline of `pointCount` points on a circle-like polygon around
// (6000, 2400): x, y of each point.
std::vector<int32_t> OutlinePoints(int32_t pointCount);

// Opens a fresh document with one order of version 600.
void StartDocument();

// One call of each adder, with the i-th set of values.
void AddOneContour(int32_t i);
void AddOneCutout(int32_t i);
void AddOneMountingPart(int32_t i);
void AddOneGirder(int32_t i);
void AddOneSteelmat(int32_t i);
void AddOneCfsRodstock(int32_t i);
void AddOneStraightRodstock(int32_t i);
void AddOneFreeFormRodstock(int32_t i);
void AddOneExternalIron(int32_t i);
void AddOneLayer(int32_t i);
void StartOneMoreOrder(int32_t i);

// An adder as the suite runs it: its name in the output, one call with the
// i-th values, and what the element needs before the first call (or null).
struct Adder {
    const char* name;
    void (*add)(int32_t);
    void (*prepare)();
};
// Every adder, `startOrder` (without clearing) first.
const std::vector<Adder>& Adders();
// The element every adder runs on: a fresh document whose element has an
// outline of `outline` (OutlinePoints), then what the adder needs first.
void PrepareFor(const Adder& adder, const std::vector<int32_t>& outline);

// The large element: every kind of record the exports make, about 5 MB
// when written.
void BuildLargeElement();

// A fresh directory under the system's temporary folder, removed with its
// files at the end.
class ScratchDirectory {
public:
    ScratchDirectory();
    ~ScratchDirectory();
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;
    std::string File(const std::string& name) const { return path_ + "/" + name; }

private:
    std::string path_;
};

// A narrow path as the host's 16-bit text, with its terminator.
std::u16string HostPath(const std::string& path);
std::string ReadBytes(const std::string& path);
// The peak resident set of this process so far, in bytes; 0 where unknown.
std::size_t PeakResidentBytes();
// The resident set of this process now, in bytes; 0 where unknown.
std::size_t ResidentBytes();

} // namespace ItUnitechnik::Bench
