/* The public header compiles as strict C99, and its blocks are what the
 * host lays out. The header of its types comes first, to compile on its own
 * as well; itunitechnik.h includes it. */
#include "itunitechnik_types.h"

#include "itunitechnik.h"

#include <stdio.h>

int main(void)
{
    ItCutoutBlock cutout;
    ItBarBlock bar;
    ItFreeFormSegment segment;
    const it_char16 name[] = {'A', 0};
    cutout.cutoutName = name;
    cutout.cutoutValue = 1.5;
    cutout.pointCount = 0;
    bar.rodKind = 1;
    segment.length = 100;
    segment.angle = -90;
    if (sizeof(it_char16) != 2 || sizeof cutout != 24 || sizeof bar != 64 || sizeof segment != 8) {
        fprintf(stderr, "unexpected sizes\n");
        return 1;
    }
    printf("header compiles as C99: %u %u %d %d\n", (unsigned)cutout.pointCount, (unsigned)bar.rodKind,
           (int)segment.length, (int)segment.angle);
    return 0;
}
