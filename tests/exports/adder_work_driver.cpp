// A host that makes n calls of one adder, as the benchmark suite does, on an
// element with an outline of 10,000 points. adder_work_check counts the
// instructions of those calls alone (RunAdds) under callgrind.
//
//     adder_work_driver <adder> <n>      exit 0, or 2 for an unknown adder
#include "workload.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <vector>

using ItUnitechnik::Bench::Adder;

// The calls that are counted: callgrind collects from here on only.
extern "C" __attribute__((noinline)) void RunAdds(void (*add)(int32_t), int32_t n)
{
    for (int32_t i = 0; i < n; ++i) {
        add(i);
    }
}

int main(int argc, char** argv)
{
    if (argc != 3) {
        return 2;
    }
    const auto n = static_cast<int32_t>(std::strtol(argv[2], nullptr, 10));
    for (const Adder& adder : ItUnitechnik::Bench::Adders()) {
        if (std::strcmp(adder.name, argv[1]) == 0) {
            const std::vector<int32_t> outline = ItUnitechnik::Bench::OutlinePoints(10000);
            ItUnitechnik::Bench::PrepareFor(adder, outline);
            RunAdds(adder.add, n);
            return 0;
        }
    }
    return 2;
}
