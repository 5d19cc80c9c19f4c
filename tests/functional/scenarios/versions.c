/* startOrder and endDocument at every version where the layout changes: one
 * order with its element per file. */
#include "scenario.h"

int main(int argc, char** argv)
{
    static const unsigned short versions[] = {0, 5, 499, 500, 501, 502, 503, 599, 600, 601};
    /* Halves round away from zero: (3, -3, 2). */
    const double placement[9] = {2.5, -2.5, 2.4, 6000, 0, 0, 0, 2400, 0};
    it_char16 path[SCENARIO_TEXT_MAX];
    it_char16 text[SCENARIO_TEXT_MAX];
    size_t i;
    if (argc != 2) {
        fprintf(stderr, "usage: versions OUTPUT-DIRECTORY\n");
        return 2;
    }
    for (i = 0; i < sizeof versions / sizeof versions[0]; ++i) {
        char name[64];
        snprintf(name, sizeof name, "v%u.txt", (unsigned)versions[i]);
        scenario_expect(startOrder(4, 101, placement, versions[i], scenario_text("Slab", text), 1.25, true) == 1,
                        "startOrder");
        scenario_expect(endDocument(scenario_path(argv[1], name, path)) == 1, "endDocument");
    }
    return 0;
}
