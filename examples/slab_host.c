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
    startOrder(1, 101, placement, 600, text16("Floor slab FS-101", elementText), 13.32, true);

    for (i = 0; i < IT_PROJECT_TEXT_COUNT; ++i) {
        project[i] = text16(projectTexts[i], projectBuffers[i]);
    }
    setProjectData(project);
    setSlabInfoFields(text16("C30/37", info[0]), text16("XC1", info[1]), text16("exposed", info[2]),
                      text16("batch 7", info[3]));

    /* One concrete layer (kind 0) of 60 mm: 2.4 kg/dm3 over a net volume of
     * 799.2 dm3 (13.32 m2 by 0.06 m), 1918.08 kg. No gap of a double wall. */
    addLayer(0, 0.06, 2.4, 799.2, text16("C30/37", layerName));
    setDoubleWallGap(0);

    {
        /* The outline: a closed rectangle of 6.0 m by 2.4 m (the first point
         * repeated closes it). */
        static const int32_t outline[] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
        /* An opening for a stair, 1.2 m by 0.9 m: 1.08 m2. */
        static const int32_t opening[] = {1000, 600, 2200, 600, 2200, 1500, 1000, 1500, 1000, 600};
        /* A mounted socket box, 60 mm high, on the pallet: its height and its
         * height above the pallet, then one straight piece x0 y0 x1 y1. */
        static const int32_t socket[] = {60, 0, 4700, 1000, 4800, 1100};
        /* A group of 4 lattice girders, 3400 mm long, from (2400, 300) along x
         * and 600 mm apart: count, length, x, y, spacing, rotation, height,
         * upper chord diameter, weight of one girder in g, height above the
         * pallet. */
        static const int32_t girders[] = {4, 3400, 2400, 300, 600, 0, 80, 10, 4930, 20};
        it_char16 name[TEXT_MAX];
        ItCutoutBlock stair;
        stair.cutoutName = text16("Stair opening", name);
        stair.cutoutValue = 1.08;
        stair.pointCount = 5;
        addContour(5, outline);
        addCutout(&stair, opening);
        addSet(3, text16("Socket box", name), 6, socket);
        addSet(5, text16("KT 800", name), 10, girders);
    }

    {
        /* A Q188A mesh at (100, 100), 5.8 m by 2.2 m, 35 mm above the pallet. */
        static const int32_t matPosition[3] = {100, 100, 35};
        /* A cranked bar: five legs of length and the turn to the next one. */
        static const ItFreeFormSegment cranked[5] = {
            {300, 45, {0, 0}}, {400, -45, {0, 0}}, {1500, -45, {0, 0}}, {400, 45, {0, 0}}, {300, 0, {0, 0}}};
        it_char16 name[TEXT_MAX];
        it_char16 extra[TEXT_MAX];
        ItBarBlock bar = {0};
        int32_t k;

        addSteelmat(text16("Q188A", name), 5800, 2200, 1, 0, 1, matPosition);
        /* Its wires, each a set of one bar of 6 mm, placed from the mat's
         * corner: 15 along it every 150 mm, then 39 across it on top. */
        for (k = 0; k < 15; ++k) {
            const int32_t at[3] = {0, 25 + 150 * k, 35};
            addCFSRodstock(1, text16("500", name), 1, 6, 5800, at, 0, 0, text16("", extra), 1, 0, 0, 0, 0);
        }
        for (k = 0; k < 39; ++k) {
            const int32_t at[3] = {25 + 150 * k, 0, 41};
            addCFSRodstock(1, text16("500", name), 1, 6, 2200, at, 0, 90, text16("", extra), 1, 0, 0, 0, 0);
        }

        /* A loose set of 5 bars of 10 mm, 3000 mm long, 400 mm apart, from
         * (2600, 400) along x, 50 mm above the pallet. */
        bar.designation = text16("500", name);
        bar.positionX = 2600;
        bar.positionY = 400;
        bar.positionZ = 400;
        bar.auxSixth = 50;
        bar.firstSize = 5;
        bar.secondSize = 10;
        bar.thirdSize = 3000;
        bar.rodKind = 1;
        addStraightRodstock(&bar);

        /* A loose set of 2 cranked bars of 12 mm, 2900 mm of bar each, below
         * and above the opening: a free form of five legs. */
        bar.extraDesignation = text16("A-102", extra);
        bar.positionX = 600;
        bar.positionY = 450;
        bar.positionZ = 1200;
        bar.firstSize = 2;
        bar.secondSize = 12;
        bar.thirdSize = 2900;
        bar.segmentCount = 5;
        bar.bendingCode = 2;
        addFreeFormRodstock(&bar, cranked);

        /* 4 lifting anchors of 1.6 kg together. */
        addExtIron(2, 4, 1.6, text16("Lifting anchor", name));
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
