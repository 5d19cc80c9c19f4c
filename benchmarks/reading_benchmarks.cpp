// The reading library's speed on the suite's large element: the file written
// once through the exports, then read back through itunitechnik_reading.h,
// whole and in its parts. The Python package's read() of the same file is
// timed by read_benchmark.py, which this program's target runs behind it.
#include "workload.h"

#include "itunitechnik_reading.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <memory>
#include <string>

namespace {

using namespace ItUnitechnik::Bench;

std::string largePath;

void Read(benchmark::State& state, int parts)
{
    std::size_t bytes = 0;
    for (auto _ : state) {
        ItrResult* result = itrReadFile(largePath.c_str(), parts);
        if (itrOk(result) != 1) {
            state.SkipWithError("the large element does not read");
        }
        bytes = std::char_traits<char>::length(itrJson(result));
        itrFree(result);
    }
    state.counters["json_bytes"] = static_cast<double>(bytes);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    // The large element's file is left for read_benchmark.py where the
    // first argument that is no option of the suite names it.
    const std::string keep = argc > 1 ? argv[1] : "";
    auto scratch = std::make_unique<ScratchDirectory>();
    largePath = keep.empty() ? scratch->File("large.uni") : keep;
    BuildLargeElement();
    const std::u16string path = HostPath(largePath);
    if (endDocument(reinterpret_cast<const it_char16*>(path.c_str())) != 1) {
        std::fprintf(stderr, "the large element could not be written to %s\n", largePath.c_str());
        return 1;
    }
    std::printf("large element: %s, %zu bytes\n", largePath.c_str(), ReadBytes(largePath).size());
    benchmark::RegisterBenchmark("itrReadFile/all", Read, ITR_ALL)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("itrReadFile/records", Read, ITR_RECORDS)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("itrReadFile/plant+bom", Read, ITR_PLANT | ITR_BOM)->Unit(benchmark::kMillisecond);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
