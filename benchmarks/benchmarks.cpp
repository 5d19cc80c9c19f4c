// The library's speed through its exports: each adder at n = 1k to 64k, the
// document file against one buffered write of the same bytes, the summary
// string against a copy of its text, and the peak memory of a large element.
// At the end it prints the ratios that the goals are stated in.
#include "workload.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace {

using namespace ItUnitechnik::Bench;

constexpr int64_t smallestCount = 1 << 10;
constexpr int64_t largestCount = 1 << 16;
// Every adder runs on an element that already has an outline of this many
// points: what an add costs beside a large outline.
constexpr int32_t backgroundPoints = 10000;

std::unique_ptr<ScratchDirectory> scratch;
std::string documentPath;
std::string rawPath;
std::string documentBytes; // what endDocument wrote for the large element
bool largeElementInPlace = false;

void EnsureLargeElement()
{
    if (!largeElementInPlace) {
        BuildLargeElement();
        largeElementInPlace = true;
    }
}

void RunAdder(benchmark::State& state, const Adder* adder)
{
    const int32_t n = static_cast<int32_t>(state.range(0));
    const std::vector<int32_t> outline = OutlinePoints(backgroundPoints);
    auto fresh = [&]() {
        PrepareFor(*adder, outline);
        largeElementInPlace = false;
    };
    // One pass outside the timing first, so that the process has the memory
    // of n records already: the first touch of fresh pages costs the system
    // far more than the adders do, and a large n runs only once.
    fresh();
    for (int32_t i = 0; i < n; ++i) {
        adder->add(i);
    }
    for (auto _ : state) {
        state.PauseTiming();
        fresh();
        state.ResumeTiming();
        for (int32_t i = 0; i < n; ++i) {
            adder->add(i);
        }
    }
    state.SetItemsProcessed(state.iterations() * n);
}

void EndDocument(benchmark::State& state)
{
    EnsureLargeElement();
    const std::u16string path = HostPath(documentPath);
    for (auto _ : state) {
        benchmark::DoNotOptimize(endDocument(reinterpret_cast<const it_char16*>(path.c_str())));
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(documentBytes.size()));
}

// One buffered write of the identical bytes: open, write, close.
void RawWrite(benchmark::State& state)
{
    for (auto _ : state) {
        std::FILE* file = std::fopen(rawPath.c_str(), "wb");
        std::fwrite(documentBytes.data(), 1, documentBytes.size(), file);
        std::fclose(file);
    }
    state.SetBytesProcessed(state.iterations() * static_cast<int64_t>(documentBytes.size()));
}

std::size_t UnitCount(const it_char16* text)
{
    std::size_t n = 0;
    while (text[n] != 0) {
        ++n;
    }
    return n;
}

void SummaryString(benchmark::State& state)
{
    EnsureLargeElement();
    for (auto _ : state) {
        it_char16* text = getFullReinforcementString();
        benchmark::DoNotOptimize(text);
        freeFullReinforcementString(text);
    }
}

// The same text copied once into a fresh block of the host's kind.
void SummaryCopy(benchmark::State& state)
{
    EnsureLargeElement();
    it_char16* text = getFullReinforcementString();
    const std::size_t bytes = (UnitCount(text) + 1) * sizeof(it_char16);
    for (auto _ : state) {
        void* block = std::malloc(bytes);
        std::memcpy(block, text, bytes);
        benchmark::DoNotOptimize(block);
        benchmark::ClobberMemory();
        std::free(block);
    }
    freeFullReinforcementString(text);
}

// Keeps the real and the CPU time per iteration of every run, in
// nanoseconds: the median when runs are repeated.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        ConsoleReporter::ReportRuns(runs);
        for (const Run& run : runs) {
            const bool single = run.run_type == Run::RT_Iteration && run.repetitions <= 1;
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (run.error_occurred || (!single && !median)) {
                continue;
            }
            const double toNanoseconds = 1e9 / benchmark::GetTimeUnitMultiplier(run.time_unit);
            std::string name = run.run_name.function_name;
            if (!run.run_name.args.empty()) {
                name += "/" + run.run_name.args;
            }
            times[name] = run.GetAdjustedRealTime() * toNanoseconds;
            cpuTimes[name] = run.GetAdjustedCPUTime() * toNanoseconds;
        }
    }

    std::map<std::string, double> times;
    std::map<std::string, double> cpuTimes;
};

struct Memory {
    std::size_t start;   // peak resident set before the large element
    std::size_t written; // with it built and written by endDocument
    std::size_t held;    // the resident set right after, without the peak
    std::size_t summary; // and its summary string taken as well
};

void PrintRatios(const RatioReporter& reporter, std::size_t fileBytes, const Memory& memory)
{
    auto time = [&reporter](const std::string& name) {
        auto found = reporter.times.find(name);
        return found == reporter.times.end() ? 0.0 : found->second;
    };
    auto cpuTime = [&reporter](const std::string& name) {
        auto found = reporter.cpuTimes.find(name);
        return found == reporter.cpuTimes.end() ? 0.0 : found->second;
    };
    std::printf("\nRatios of real times (goal in brackets)\n");
    std::printf("%-22s", "adder t(2n)/t(n)  n =");
    for (int64_t n = smallestCount; n < largestCount; n *= 2) {
        std::printf(" %6lldk", static_cast<long long>(n / 1024));
    }
    std::printf("    max  [<= 2.2]\n");
    for (const Adder& adder : Adders()) {
        std::printf("%-22s", adder.name);
        double worst = 0;
        for (int64_t n = smallestCount; n < largestCount; n *= 2) {
            const double small = time(std::string(adder.name) + "/" + std::to_string(n));
            const double large = time(std::string(adder.name) + "/" + std::to_string(2 * n));
            if (small > 0 && large > 0) {
                const double ratio = large / small;
                worst = std::max(worst, ratio);
                std::printf(" %7.2f", ratio);
            } else {
                std::printf(" %7s", "-");
            }
        }
        std::printf("  %5.2f\n", worst);
    }
    // Real time, and CPU time beside it: on a machine that other work
    // shares, the CPU times move less.
    auto compare = [&](const char* what, const char* subject, const char* baseline) {
        const double a = time(subject);
        const double b = time(baseline);
        const double ac = cpuTime(subject);
        const double bc = cpuTime(baseline);
        if (a > 0 && b > 0 && ac > 0 && bc > 0) {
            std::printf("%s: %.2f ms / %.3f ms = %.2f (CPU %.2f ms / %.3f ms = %.2f)  [<= 5]\n", what, a / 1e6, b / 1e6,
                        a / b, ac / 1e6, bc / 1e6, ac / bc);
        }
    };
    const std::string fileWhat =
        "endDocument / one buffered fwrite of the same " + std::to_string(fileBytes) + " bytes";
    compare(fileWhat.c_str(), "endDocument", "rawWrite");
    compare("getFullReinforcementString / a copy of its text", "getFullReinforcementString", "copyOfSummaryText");
    const double goal = 3.0 * static_cast<double>(fileBytes) + 10.0 * 1024 * 1024;
    auto megabytes = [](double bytes) { return bytes / 1048576.0; };
    std::printf("peak resident set: %.1f MB before the large element, %.1f MB with it built and written, "
                "%.1f MB with its summary taken too; file %.1f MB, goal 3 x file + 10 MB = %.1f MB; "
                "ratios %.2f and %.2f  [<= 1]\n",
                megabytes(static_cast<double>(memory.start)), megabytes(static_cast<double>(memory.written)),
                megabytes(static_cast<double>(memory.summary)), megabytes(static_cast<double>(fileBytes)),
                megabytes(goal), static_cast<double>(memory.written) / goal,
                static_cast<double>(memory.summary) / goal);
    // What the process holds once the element is written, beside its peak:
    // what lies between stood for a moment only, as while a list grew
    // and held its records twice.
    std::printf("resident set with the element written, past its peak: %.1f MB (%.2f of the goal)\n",
                megabytes(static_cast<double>(memory.held)), static_cast<double>(memory.held) / goal);
}

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    scratch = std::make_unique<ScratchDirectory>();
    documentPath = scratch->File("large.uni");
    rawPath = scratch->File("raw.uni");

    // The memory first, before any other benchmark has grown the process:
    // build the large element, write it and take its summary.
    Memory memory{};
    memory.start = PeakResidentBytes();
    EnsureLargeElement();
    const std::u16string path = HostPath(documentPath);
    endDocument(reinterpret_cast<const it_char16*>(path.c_str()));
    memory.written = PeakResidentBytes();
    memory.held = ResidentBytes();
    freeFullReinforcementString(getFullReinforcementString());
    memory.summary = PeakResidentBytes();
    documentBytes = ReadBytes(documentPath);

    benchmark::RegisterBenchmark("endDocument", EndDocument)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("rawWrite", RawWrite)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("getFullReinforcementString", SummaryString)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("copyOfSummaryText", SummaryCopy)->Unit(benchmark::kMillisecond);
    for (const Adder& adder : Adders()) {
        benchmark::RegisterBenchmark(adder.name, RunAdder, &adder)
            ->RangeMultiplier(2)
            ->Range(smallestCount, largestCount)
            ->Unit(benchmark::kMillisecond);
    }

    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    PrintRatios(reporter, documentBytes.size(), memory);
    benchmark::Shutdown();
    scratch.reset();
    return 0;
}
