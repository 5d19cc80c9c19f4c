// Writes the files of the viewer's speed benchmark through the library's
// exports, as the benchmark suite's host does:
//   speed_files FOLDER
// large.uni is the suite's large element (benchmarks/workload.cpp, 5.3 MB);
// 1mb.uni and 8mb.uni have the same kinds of records, at a fifth and at one
// and a half times their numbers.
#include "workload.h"

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace {

using namespace ItUnitechnik::Bench;

// The large element's records, each number times SCALE.
void BuildScaledElement(double scale)
{
    const auto times = [scale](int32_t count) { return static_cast<int32_t>(count * scale); };
    StartDocument();
    for (int32_t i = 0; i < times(20); ++i) {
        AddOneLayer(i);
    }
    const std::vector<int32_t> outline = OutlinePoints(times(20000));
    addContour(static_cast<int32_t>(outline.size() / 2), outline.data());
    for (int32_t i = 0; i < times(500); ++i) {
        AddOneCutout(i);
    }
    for (int32_t i = 0; i < times(2000); ++i) {
        AddOneMountingPart(i);
    }
    for (int32_t i = 0; i < times(5000); ++i) {
        AddOneGirder(i);
    }
    for (int32_t mat = 0; mat < times(40); ++mat) {
        AddOneSteelmat(mat);
        for (int32_t i = 0; i < 250; ++i) {
            AddOneCfsRodstock(i);
        }
    }
    for (int32_t i = 0; i < times(6000); ++i) {
        AddOneStraightRodstock(i);
    }
    for (int32_t i = 0; i < times(3000); ++i) {
        AddOneFreeFormRodstock(i);
    }
    for (int32_t i = 0; i < times(2000); ++i) {
        AddOneExternalIron(i);
    }
}

bool Write(const std::string& path)
{
    const std::u16string host = HostPath(path);
    if (endDocument(reinterpret_cast<const it_char16*>(host.c_str())) != 1) {
        std::fprintf(stderr, "%s could not be written\n", path.c_str());
        return false;
    }
    std::printf("%s: %zu bytes\n", path.c_str(), ReadBytes(path).size());
    return true;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: speed_files FOLDER\n");
        return 2;
    }
    const std::string folder = argv[1];
    BuildScaledElement(0.2);
    if (!Write(folder + "/1mb.uni")) {
        return 1;
    }
    BuildLargeElement();
    if (!Write(folder + "/large.uni")) {
        return 1;
    }
    BuildScaledElement(1.5);
    return Write(folder + "/8mb.uni") ? 0 : 1;
}
