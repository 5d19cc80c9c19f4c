#include "workload.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <dirent.h>
#include <unistd.h>

namespace ItUnitechnik::Bench {
namespace {

const it_char16* Host(const char16_t* text)
{
    return reinterpret_cast<const it_char16*>(text);
}

} // namespace

std::vector<int32_t> OutlinePoints(int32_t pointCount)
{
    std::vector<int32_t> points;
    points.reserve(2 * static_cast<std::size_t>(pointCount));
    const double step = 2.0 * 3.14159265358979323846 / (pointCount > 1 ? pointCount - 1 : 1);
    for (int32_t i = 0; i < pointCount; ++i) {
        // The last point repeats the first: a closed outline.
        const double angle = (i == pointCount - 1) ? 0.0 : step * i;
        points.push_back(static_cast<int32_t>(6000 + std::lround(6000.0 * std::cos(angle))));
        points.push_back(static_cast<int32_t>(2400 + std::lround(2400.0 * std::sin(angle))));
    }
    return points;
}

void StartDocument()
{
    const double placement[9] = {0, 0, 0, 12000, 0, 0, 0, 4800, 0};
    startOrder(1, 101, placement, 600, Host(u"Floor slab"), 1.25, true);
}

void AddOneContour(int32_t i)
{
    const int32_t x = i % 1000;
    const int32_t points[10] = {x, 0, x + 3000, 0, x + 3000, 1500, x, 1500, x, 0};
    addContour(5, points);
}

void AddOneCutout(int32_t i)
{
    const int32_t x = 100 + i % 1000;
    const int32_t points[10] = {x, 100, x + 400, 100, x + 400, 300, x, 300, x, 100};
    const ItCutoutBlock block{Host(u"Opening"), 0.08, 5};
    addCutout(&block, points);
}

void AddOneMountingPart(int32_t i)
{
    const int32_t x = 200 + i % 5000;
    const int32_t values[18] = {3,   7,       x,   200, x + 120, 200, x + 120, 200, x + 120,
                                320, x + 120, 320, x,   320,     x,   320,     x,   200};
    addSet(3, Host(u"Socket box"), 18, values);
}

void AddOneGirder(int32_t i)
{
    const int32_t values[10] = {800, 4500, 100 + i % 6000, 200, 30, 90, 5, 7, 1500, 12};
    addSet(5, Host(u"KT 800"), 10, values);
}

void AddOneSteelmat(int32_t i)
{
    const int32_t position[3] = {100 + i % 100, 50, 0};
    addSteelmat(Host(u"Q188A"), 2350, 5900, 1, 0, 2, position);
}

void AddOneCfsRodstock(int32_t i)
{
    const int32_t position[3] = {150 + i % 5000, 200, 5};
    addCFSRodstock(1, Host(u"B500B"), 2300, 10, 0, position, 40, 90, Host(u"U1"), 1, 2, 3, 4, 10);
}

namespace {

ItBarBlock BarBlock(int32_t i)
{
    ItBarBlock bar;
    std::memset(&bar, 0, sizeof bar);
    bar.extraDesignation = Host(u"EXTRA");
    bar.designation = Host(u"B500B");
    bar.auxFourth = 4;
    bar.auxFifth = 5;
    bar.auxSixth = 6;
    bar.thirdSize = 0;
    bar.positionX = 100 + i % 10000;
    bar.positionY = 250;
    bar.positionZ = 30;
    bar.firstSize = 3000;
    bar.secondSize = 12;
    bar.rotation = 90;
    bar.auxFirst = 1;
    bar.rodKind = 1;
    bar.notMounted = 0;
    bar.bendingCode = 0;
    return bar;
}

} // namespace

void AddOneStraightRodstock(int32_t i)
{
    const ItBarBlock bar = BarBlock(i);
    addStraightRodstock(&bar);
}

void AddOneFreeFormRodstock(int32_t i)
{
    ItBarBlock bar = BarBlock(i);
    bar.bendingCode = 2;
    bar.segmentCount = 8;
    const ItFreeFormSegment segments[8] = {{200, 90, {0, 0}},   {1000, -90, {0, 0}}, {150, 45, {0, 0}},
                                           {300, 0, {0, 0}},    {400, -45, {0, 0}},  {500, 135, {0, 0}},
                                           {250, -180, {0, 0}}, {120, 30, {0, 0}}};
    addFreeFormRodstock(&bar, segments);
}

void AddOneExternalIron(int32_t i)
{
    addExtIron(100 + i % 50, 4, 12.5, Host(u"Lifting anchor"));
}

void AddOneLayer(int32_t i)
{
    addLayer(static_cast<uint16_t>(1 + i % 3), 0.06, 2.4, 0.5, Host(u"C30/37"));
}

void StartOneMoreOrder(int32_t i)
{
    const double placement[9] = {0, 0, 0, 12000, 0, 0, 0, 4800, 0};
    startOrder(1, 101 + i, placement, 600, Host(u"Floor slab"), 1.25, false);
}

namespace {

void OneMat()
{
    AddOneSteelmat(0);
}

} // namespace

const std::vector<Adder>& Adders()
{
    static const std::vector<Adder> adders = {
        {"startOrder", StartOneMoreOrder, nullptr},
        {"addLayer", AddOneLayer, nullptr},
        {"addContour", AddOneContour, nullptr},
        {"addCutout", AddOneCutout, nullptr},
        {"addSet/part", AddOneMountingPart, nullptr},
        {"addSet/girder", AddOneGirder, nullptr},
        {"addSteelmat", AddOneSteelmat, nullptr},
        {"addCFSRodstock", AddOneCfsRodstock, OneMat},
        {"addStraightRodstock", AddOneStraightRodstock, nullptr},
        {"addFreeFormRodstock", AddOneFreeFormRodstock, nullptr},
        {"addExtIron", AddOneExternalIron, nullptr},
    };
    return adders;
}

void PrepareFor(const Adder& adder, const std::vector<int32_t>& outline)
{
    StartDocument();
    addContour(static_cast<int32_t>(outline.size() / 2), outline.data());
    if (adder.prepare != nullptr) {
        adder.prepare();
    }
}

void BuildLargeElement()
{
    StartDocument();
    std::u16string texts[IT_PROJECT_TEXT_COUNT];
    const it_char16* pointers[IT_PROJECT_TEXT_COUNT];
    for (int k = 0; k < IT_PROJECT_TEXT_COUNT; ++k) {
        texts[k] = u"Text " + std::u16string(1, static_cast<char16_t>(u'A' + k));
        pointers[k] = Host(texts[k].c_str());
    }
    texts[IT_PROJECT_DATE] = u"24.12.2024";
    pointers[IT_PROJECT_DATE] = Host(texts[IT_PROJECT_DATE].c_str());
    setProjectData(pointers);
    setSlabInfoFields(Host(u"Info 1"), Host(u"Info 2"), Host(u"Info 3"), Host(u"Info 4"));
    setThicknesses(200, 200);
    setDoubleWallGap(0);
    for (int32_t i = 0; i < 20; ++i) {
        AddOneLayer(i);
    }
    const std::vector<int32_t> outline = OutlinePoints(20000);
    addContour(static_cast<int32_t>(outline.size() / 2), outline.data());
    for (int32_t i = 0; i < 500; ++i) {
        AddOneCutout(i);
    }
    for (int32_t i = 0; i < 2000; ++i) {
        AddOneMountingPart(i);
    }
    for (int32_t i = 0; i < 5000; ++i) {
        AddOneGirder(i);
    }
    for (int32_t mat = 0; mat < 40; ++mat) {
        AddOneSteelmat(mat);
        for (int32_t i = 0; i < 250; ++i) {
            AddOneCfsRodstock(i);
        }
    }
    for (int32_t i = 0; i < 6000; ++i) {
        AddOneStraightRodstock(i);
    }
    for (int32_t i = 0; i < 3000; ++i) {
        AddOneFreeFormRodstock(i);
    }
    for (int32_t i = 0; i < 2000; ++i) {
        AddOneExternalIron(i);
    }
}

ScratchDirectory::ScratchDirectory()
{
    const char* base = std::getenv("TMPDIR");
    std::string pattern = std::string(base != nullptr && *base != '\0' ? base : "/tmp") + "/itbench-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr) {
        throw std::runtime_error("no scratch directory");
    }
    path_ = pattern;
}

ScratchDirectory::~ScratchDirectory()
{
    if (DIR* dir = opendir(path_.c_str())) {
        while (dirent* entry = readdir(dir)) {
            const std::string name = entry->d_name;
            if (name != "." && name != "..") {
                std::remove(File(name).c_str());
            }
        }
        closedir(dir);
    }
    rmdir(path_.c_str());
}

std::u16string HostPath(const std::string& path)
{
    return std::u16string(path.begin(), path.end());
}

std::string ReadBytes(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

namespace {

// A size line of /proc/self/status ("VmHWM:  27904 kB"), in bytes.
std::size_t StatusBytes(const char* field)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    const std::string name = std::string(field) + ":";
    while (std::getline(status, line)) {
        if (line.rfind(name, 0) == 0) {
            return static_cast<std::size_t>(std::strtoull(line.c_str() + name.size(), nullptr, 10)) * 1024;
        }
    }
    return 0;
}

} // namespace

std::size_t PeakResidentBytes()
{
    return StatusBytes("VmHWM");
}

std::size_t ResidentBytes()
{
    return StatusBytes("VmRSS");
}

} // namespace ItUnitechnik::Bench
