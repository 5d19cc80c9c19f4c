// A C++ host: a slab with its outline and a mat, written to the file named by
// its one argument; the reinforcement summary goes back to the library
// through a unique_ptr, whatever its kind.
#include <itunitechnik.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

namespace {

struct GiveBack {
    void operator()(it_char16* text) const { freeFullReinforcementString(text); }
};
using Summary = std::unique_ptr<it_char16, GiveBack>;

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        return 2;
    }
    const std::string file = argv[1];
    const std::u16string path(file.begin(), file.end()); // an ASCII path

    const std::array<double, 9> placement{0, 0, 0, 6000, 0, 0, 0, 2400, 0};
    startOrder(1, 101, placement.data(), 600, u"Floor slab", 1.25, true);

    // A closed rectangle: the first point again at the end.
    const std::array<std::int32_t, 10> outline{0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
    addContour(5, outline.data());
    const std::array<std::int32_t, 3> matPosition{100, 100, 35};
    const int mat = addSteelmat(u"Q188A", 5800, 2200, 1, 0, 1, matPosition.data());

    if (mat != 1 || endDocument(path.c_str()) != 1) {
        return 1;
    }
    const Summary summary(getFullReinforcementString());
    const std::u16string text(summary.get());
    if (text.find(u"STEELMAT") == std::u16string::npos) {
        return 1;
    }
    std::printf("wrote %s; the summary has %zu characters\n", file.c_str(), text.size());
    return 0;
}
