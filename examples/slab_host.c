/* An example host: what a design application does to hand one slab to a
 * precast plant, reinforcement and all, and to show the plant's view of the
 * reinforcement without a file. It uses only the public header. */
#include "itunitechnik.h"

#include <stdint.h>
#include <stdio.h>

#define TEXT_MAX 512

static const it_char16* text16(const char* ascii, it_char16* buffer)
{
    size_t i = 0;
    for (; ascii[i] != '\0' && i + 1 < TEXT_MAX; ++i) {
        buffer[i] = (it_char16)(unsigned char)ascii[i];
    }
    buffer[i] = 0;
    return buffer;
}

int main(int argc, char** argv)
{
    it_char16 path[TEXT_MAX];
    it_char16 elementText[TEXT_MAX];
    /* Three points of the element's placement: origin, x direction, y direction. */
    const double placement[9] = {0.0, 0.0, 0.0, 6000.0, 0.0, 0.0, 0.0, 2400.0, 0.0};
    const char* file = argc > 1 ? argv[1] : "slab.uni";

    static const char* const projectTexts[IT_PROJECT_TEXT_COUNT] = {"ORD-2026-0142",
                                                                    "A1   ",
                                                                    "LV01",
                                                                    "K-77", /* order number and identifying texts */
                                                                    "Riverside Tower",
                                                                    "Block B",
                                                                    "Level 3",
                                                                    "Slabs", /* project */
                                                                    "Precast Works Ltd",
                                                                    "Quarry Road 12",
                                                                    "D-12345",
                                                                    "Steinfeld", /* plant */
                                                                    "Main Contractor",
                                                                    "Harbour Street 1",
                                                                    "D-20457",
                                                                    "Hamburg", /* site */
                                                                    "21.11.2026",
                                                                    "01",
                                                                    "Floor slab, fair-faced underside"};
    it_char16 projectBuffers[IT_PROJECT_TEXT_COUNT][TEXT_MAX];
    const it_char16* project[IT_PROJECT_TEXT_COUNT];
    it_char16 info[4][TEXT_MAX];
    it_char16 layerName[TEXT_MAX];
    int i;

    /* A new document with one order of format version 600. */
    startOrder(1, 101, placement, 600, text16("Floor slab FS-101", elementText), 1.25, true);

    for (i = 0; i < IT_PROJECT_TEXT_COUNT; ++i) {
        project[i] = text16(projectTexts[i], projectBuffers[i]);
    }
    setProjectData(project);
    setSlabInfoFields(text16("C30/37", info[0]), text16("XC1", info[1]), text16("exposed", info[2]),
                      text16("batch 7", info[3]));

    /* Two concrete layers: 60 mm and 140 mm, and the gap of a double wall. */
    addLayer(1, 0.06, 2.4, 0.06, text16("C30/37", layerName));
    addLayer(2, 0.14, 2.4, 0.14, text16("C25/30", layerName));
    setDoubleWallGap(0);

    {
        /* The outline: a closed rectangle of 6.0 m by 2.4 m (the first point
         * repeated closes it). */
        static const int32_t outline[] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
        /* An opening for a stair, 1.2 m by 0.9 m. */
        static const int32_t opening[] = {1000, 600, 2200, 600, 2200, 1500, 1000, 1500, 1000, 600};
        /* A mounted socket box: two values, then one straight piece x0 y0 x1 y1. */
        static const int32_t socket[] = {1, 0, 4500, 1200, 4600, 1300};
        /* Two lattice girders: groups of ten values. */
        static const int32_t girders[] = {8, 80, 300, 400,  60, 0, 1, 10, 1500, 5400,
                                          8, 80, 300, 2000, 60, 0, 1, 10, 1500, 5400};
        it_char16 name[TEXT_MAX];
        ItCutoutBlock stair;
        stair.cutoutName = text16("Stair opening", name);
        stair.cutoutValue = 1.08;
        stair.pointCount = 5;
        addContour(5, outline);
        addCutout(&stair, opening);
        addSet(3, text16("Socket box", name), 6, socket);
        addSet(5, text16("KT 800", name), 20, girders);
    }

    {
        /* A mat at (100, 100), 5.8 m by 2.2 m, with two bars of its own. */
        static const int32_t matPosition[3] = {100, 100, 35};
        static const int32_t barAlong[3] = {150, 150, 0};
        static const int32_t barAcross[3] = {150, 150, 0};
        /* A hook: seven segments of length and angle. */
        static const ItFreeFormSegment hook[7] = {{250, 90, {0, 0}}, {1200, 0, {0, 0}}, {250, -90, {0, 0}},
                                                  {400, 45, {0, 0}}, {300, 0, {0, 0}},  {150, -45, {0, 0}},
                                                  {100, 0, {0, 0}}};
        it_char16 name[TEXT_MAX];
        it_char16 extra[TEXT_MAX];
        ItBarBlock bar = {0};

        addSteelmat(text16("Q188A", name), 5800, 2200, 1, 0, 1, matPosition);
        /* One bar along the mat and one across it. */
        addCFSRodstock(1, text16("B500B", name), 5800, 8, 0, barAlong, 35, 0, text16("pos 1", extra), 1, 0, 0, 0, 0);
        addCFSRodstock(1, text16("B500B", name), 2200, 8, 0, barAcross, 43, 90, text16("pos 2", extra), 1, 0, 0, 0, 0);

        /* A loose straight bar along the opening. */
        bar.designation = text16("B500B", name);
        bar.positionX = 900;
        bar.positionY = 500;
        bar.positionZ = 40;
        bar.firstSize = 1400;
        bar.secondSize = 12;
        bar.rodKind = 1;
        addStraightRodstock(&bar);

        /* A loose bent bar: a free form of seven segments. */
        bar.extraDesignation = text16("hook", extra);
        bar.positionX = 2400;
        bar.positionY = 1000;
        bar.firstSize = 2650;
        bar.secondSize = 10;
        bar.segmentCount = 7;
        bar.bendingCode = 2;
        addFreeFormRodstock(&bar, hook);

        addExtIron(2, 4, 1.5, text16("Lifting anchor", name));
    }

    if (endDocument(text16(file, path)) != 1) {
        fprintf(stderr, "slab_host: the document could not be written\n");
        return 1;
    }
    printf("slab_host: wrote %s\n", file);

    {
        /* The reinforcement as the plant sees it, without a file. Every result
         * goes back to the library, whatever its kind. */
        it_char16* summary = getFullReinforcementString();
        size_t k;
        printf("slab_host: the reinforcement summary:\n");
        for (k = 0; summary[k] != 0; ++k) {
            putchar(summary[k] < 0x80 ? (int)summary[k] : '?');
        }
        freeFullReinforcementString(summary);
    }
    return 0;
}
