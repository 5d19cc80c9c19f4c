/* A realistic slab through the exports alone, once at 502 and once at 600:
 * the order's texts, project, addresses and date, the element's info texts,
 * three concrete layers, a wall gap, a closed outline, two openings (one
 * closed, one left open) and two mounted parts of one and two pieces. */
#include "scenario.h"

static void build_slab(unsigned short version)
{
    static const char* const projectTexts[IT_PROJECT_TEXT_COUNT] = {
        "A-2026-1047",              /* order number: longer than the old field */
        "PLT01",                    /* orderText5 */
        "WK12",                     /* orderText4 */
        "LINE3",                    /* orderText8 */
        "Riverside Housing Estate", /* project: longer than its field */
        "Block C",
        "Level 2",
        "Slab S-14",
        "Hartmann Bau GmbH", /* first address */
        "Industriestrasse 12",
        "70565",
        "Stuttgart",
        "Precast Works Nord", /* second address */
        "Hafenweg 3",
        "20457",
        "Hamburg",
        "21.11.2026",                            /* date */
        "R1",                                    /* orderText2 */
        "Slab with two openings and two sockets" /* orderText40 */
    };
    static it_char16 buffers[IT_PROJECT_TEXT_COUNT][SCENARIO_TEXT_MAX];
    const it_char16* texts[IT_PROJECT_TEXT_COUNT];
    const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
    /* The outline: a closed rectangle, the first point repeated at the end. */
    const int32_t outline[10] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
    /* A stair opening, closed; a duct opening of two pieces, left open. */
    const int32_t stair[10] = {1000, 500, 2200, 500, 2200, 1700, 1000, 1700, 1000, 500};
    const int32_t duct[6] = {4000, 800, 4600, 800, 4600, 1400};
    /* Mounted parts: two set values, then x0, y0, x1, y1 per piece. */
    const int32_t socket[6] = {12, 34, 3000, 1000, 3250, 1400};
    const int32_t anchor[10] = {7, 5, 500, 300, 800, 300, 800, 300, 800, 900};
    it_char16 text[SCENARIO_TEXT_MAX];
    it_char16 info[4][SCENARIO_TEXT_MAX];
    ItCutoutBlock block;
    size_t i;

    scenario_expect(startOrder(5, 17, placement, version, scenario_text("Slab A", text), 2.4, true) == 1, "startOrder");

    for (i = 0; i < IT_PROJECT_TEXT_COUNT; ++i) {
        texts[i] = scenario_text(projectTexts[i], buffers[i]);
    }
    setProjectData(texts);
    setSlabInfoFields(scenario_text("Info one", info[0]), scenario_text("Info two", info[1]),
                      scenario_text("C30/37", info[2]), scenario_text("XC1", info[3]));

    /* 60 + 80 + 60 millimetres; the products add up to 2400 + 900 + 2400. */
    addLayer(1, 0.06, 1.0, 2400.0, scenario_text("C30/37", text));
    addLayer(2, 0.08, 0.5, 1800.0, scenario_text("INSUL", text));
    addLayer(1, 0.06, 1.0, 2400.0, scenario_text("C30/37", text));
    setDoubleWallGap(25);

    addContour(5, outline);

    block.cutoutName = scenario_text("Stair opening", text);
    block.cutoutValue = 1.25;
    block.pointCount = 5;
    addCutout(&block, stair);
    block.cutoutName = scenario_text("Duct", text);
    block.cutoutValue = 0.5;
    block.pointCount = 3;
    addCutout(&block, duct);

    scenario_expect(addSet(3, scenario_text("Socket M16", text), 6, socket) == 1, "addSet socket");
    scenario_expect(addSet(3, scenario_text("Lifting anchor", text), 10, anchor) == 1, "addSet anchor");
}

int main(int argc, char** argv)
{
    it_char16 path[SCENARIO_TEXT_MAX];
    if (argc != 2) {
        fprintf(stderr, "usage: slab OUTPUT-DIRECTORY\n");
        return 2;
    }
    build_slab(502);
    scenario_expect(endDocument(scenario_path(argv[1], "slab-502.txt", path)) == 1, "endDocument 502");
    build_slab(600);
    scenario_expect(endDocument(scenario_path(argv[1], "slab-600.txt", path)) == 1, "endDocument 600");
    /* The same calls give the same bytes: the whole slab built again. */
    build_slab(600);
    scenario_expect(endDocument(scenario_path(argv[1], "slab-600-again.txt", path)) == 1, "endDocument 600 again");
    return 0;
}
