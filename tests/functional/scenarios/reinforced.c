/* A reinforced slab through the exports alone, at 502 and at 600: two mats,
 * bars in the second, a loose straight and a loose free-form bar, girders in
 * two groups, external irons. Beside each document the summary string of the
 * same element, in UTF-8 with its line feeds; and the summary with no order
 * and for a fresh element. */
#include "scenario.h"

/* The summary string as UTF-8 in a file of its own; every result is given
 * back, whatever its kind. */
static void write_summary(const char* directory, const char* name)
{
    char path[SCENARIO_TEXT_MAX];
    it_char16* text = getFullReinforcementString();
    FILE* file;
    size_t i;
    scenario_expect(text != NULL, "summary string");
    snprintf(path, sizeof path, "%s/%s", directory, name);
    file = fopen(path, "wb");
    scenario_expect(file != NULL, "summary file");
    for (i = 0; text[i] != 0; ++i) {
        const unsigned long unit = (unsigned long)text[i];
        if (unit < 0x80) {
            fputc((int)unit, file);
        } else if (unit < 0x800) {
            fputc((int)(0xC0 | (unit >> 6)), file);
            fputc((int)(0x80 | (unit & 0x3F)), file);
        } else {
            fputc((int)(0xE0 | (unit >> 12)), file);
            fputc((int)(0x80 | ((unit >> 6) & 0x3F)), file);
            fputc((int)(0x80 | (unit & 0x3F)), file);
        }
    }
    fclose(file);
    freeFullReinforcementString(text);
}

static void start(unsigned short version)
{
    const double placement[9] = {2.5, -2.5, 2.4, 6000, 0, 0, 0, 2400, 0};
    it_char16 text[SCENARIO_TEXT_MAX];
    scenario_expect(startOrder(4, 101, placement, version, scenario_text("Slab", text), 1.25, true) == 1, "startOrder");
}

static void build_reinforcement(void)
{
    const int32_t firstMat[3] = {100, 50, 0};
    const int32_t secondMat[3] = {120, 70, 160};
    const int32_t firstBar[3] = {150, 200, 5};
    const int32_t secondBar[3] = {300, 400, 0};
    /* Two groups of ten: type, size, x, y, z, rotation, aux, short, value in
     * thousandths, last. */
    const int32_t girders[20] = {800,  4500, 100,  200,  30, 90,  5,  7, 1500,   12,
                                 1000, 3800, -150, 2000, 0,  -45, 12, 3, 123456, 99999};
    const ItFreeFormSegment segments[7] = {{200, 90, {0, 0}},  {1000, -90, {0, 0}}, {150, 45, {0, 0}},
                                           {300, 0, {0, 0}},   {400, -45, {0, 0}},  {500, 135, {0, 0}},
                                           {250, -180, {0, 0}}};
    it_char16 text[SCENARIO_TEXT_MAX];
    it_char16 extra[SCENARIO_TEXT_MAX];
    ItBarBlock bar;

    scenario_expect(addCFSRodstock(1, scenario_text("B500B", text), 2300, 10, 0, firstBar, 40, 90,
                                   scenario_text("U1", extra), 1, 2, 3, 4, 110) == -1,
                    "bar before any mat");
    scenario_expect(addSteelmat(scenario_text("Q188A", text), 2350, 5900, 1, 0, 65537, firstMat) == 1, "first mat");
    scenario_expect(addSteelmat(scenario_text("Q257 upper layer mat XL", text), 2350, 5900, 0, 3, 2, secondMat) == 2,
                    "second mat");
    /* Both bars join the second mat, numbered from 1 there. */
    scenario_expect(addCFSRodstock(1, scenario_text("B500B", text), 2300, 10, 0, firstBar, 40, 90,
                                   scenario_text("U1", extra), 1, 2, 3, 4, 0) == 1,
                    "first bar");
    scenario_expect(addCFSRodstock(2, scenario_text("B500B", text), 1800, 8, 0, secondBar, 40, -90,
                                   scenario_text("", extra), 0, 0, 0, 0, 20) == 2,
                    "second bar");

    /* A loose straight bar: the free-form cells hold values it must not read. */
    memset(&bar, 0, sizeof bar);
    bar.extraDesignation = scenario_text("IGNORED", extra);
    bar.designation = scenario_text("BSt 500 S", text);
    bar.auxFourth = 999;
    bar.auxFifth = 999;
    bar.auxSixth = 6;
    bar.thirdSize = 0;
    bar.positionX = 500;
    bar.positionY = 600;
    bar.positionZ = 30;
    bar.firstSize = 5800;
    bar.secondSize = 12;
    bar.rotation = 0;
    bar.auxFirst = 999;
    bar.segmentCount = 7;
    bar.rodKind = 1;
    bar.notMounted = 0;
    bar.bendingCode = 2;
    addStraightRodstock(&bar);

    /* A loose free-form bar of seven segments: lines of six and one. */
    memset(&bar, 0, sizeof bar);
    bar.extraDesignation = scenario_text("HOOK", extra);
    bar.designation = scenario_text("B500A", text);
    bar.auxFourth = 40;
    bar.auxFifth = 50;
    bar.auxSixth = 60;
    bar.positionX = 1000;
    bar.positionY = 1200;
    bar.positionZ = 35;
    bar.firstSize = 1650;
    bar.secondSize = 10;
    bar.rotation = 45;
    bar.auxFirst = 1;
    bar.segmentCount = 7;
    bar.rodKind = 2;
    bar.notMounted = 0;
    bar.bendingCode = 2;
    addFreeFormRodstock(&bar, segments);

    scenario_expect(addSet(5, scenario_text("KT 812", text), 20, girders) == 1, "girders");
    scenario_expect(addExtIron(2, 10, 1.5, scenario_text("Anchor", text)) == 1, "first iron");
    scenario_expect(addExtIron(3, 4, 0.25, scenario_text("Lifting loop, long description text", text)) == 2,
                    "second iron");
}

int main(int argc, char** argv)
{
    static const unsigned short versions[2] = {502, 600};
    /* A text with a character above U+00FF, which only the summary keeps. */
    const it_char16 omega[4] = {0x03A9, ' ', '7', 0};
    it_char16 path[SCENARIO_TEXT_MAX];
    size_t i;
    if (argc != 2) {
        fprintf(stderr, "usage: reinforced OUTPUT-DIRECTORY\n");
        return 2;
    }
    write_summary(argv[1], "summary-none.txt");
    start(600);
    write_summary(argv[1], "summary-fresh-600.txt");

    for (i = 0; i < 2; ++i) {
        char name[64];
        start(versions[i]);
        build_reinforcement();
        snprintf(name, sizeof name, "reinforced-%u.txt", (unsigned)versions[i]);
        scenario_expect(endDocument(scenario_path(argv[1], name, path)) == 1, "endDocument");
        /* The document stays: one more iron, then its summary. */
        scenario_expect(addExtIron(1, 1, 0.0, omega) == 3, "third iron");
        snprintf(name, sizeof name, "summary-%u.txt", (unsigned)versions[i]);
        write_summary(argv[1], name);
    }
    return 0;
}
