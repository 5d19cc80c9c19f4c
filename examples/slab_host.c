/* An example host: what a design application does to hand one slab to a
 * precast plant. It uses only the public header. */
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

    static const char* const projectTexts[IT_PROJECT_TEXT_COUNT] = {
        "ORD-2026-0142", "A1   ", "LV01", "K-77", /* order number and identifying texts */
        "Riverside Tower", "Block B", "Level 3", "Slabs",           /* project */
        "Precast Works Ltd", "Quarry Road 12", "D-12345", "Steinfeld", /* plant */
        "Main Contractor", "Harbour Street 1", "D-20457", "Hamburg", /* site */
        "21.11.2026", "01", "Floor slab, fair-faced underside"};
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
        static const int32_t girders[] = {8, 80, 300, 400, 60, 0, 1, 10, 1500, 5400,
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

    if (endDocument(text16(file, path)) != 1) {
        fprintf(stderr, "slab_host: the document could not be written\n");
        return 1;
    }
    printf("slab_host: wrote %s\n", file);
    return 0;
}
