/* The blocks of the header as the C compiler lays them out, for the bindings'
 * layout tests: one line per block with its size, and one per field with its
 * offset. */
#include "itunitechnik.h"

#include <stdio.h>

#define SIZE(type) printf("%s size %u\n", #type, (unsigned)sizeof(type))
#define FIELD(type, field) printf("%s.%s %u\n", #type, #field, (unsigned)offsetof(type, field))

int main(void)
{
    SIZE(ItCutoutBlock);
    FIELD(ItCutoutBlock, cutoutName);
    FIELD(ItCutoutBlock, cutoutValue);
    FIELD(ItCutoutBlock, pointCount);

    SIZE(ItBarBlock);
    FIELD(ItBarBlock, extraDesignation);
    FIELD(ItBarBlock, designation);
    FIELD(ItBarBlock, auxFourth);
    FIELD(ItBarBlock, auxFifth);
    FIELD(ItBarBlock, auxSixth);
    FIELD(ItBarBlock, thirdSize);
    FIELD(ItBarBlock, positionX);
    FIELD(ItBarBlock, positionY);
    FIELD(ItBarBlock, positionZ);
    FIELD(ItBarBlock, firstSize);
    FIELD(ItBarBlock, secondSize);
    FIELD(ItBarBlock, rotation);
    FIELD(ItBarBlock, auxFirst);
    FIELD(ItBarBlock, segmentCount);
    FIELD(ItBarBlock, rodKind);
    FIELD(ItBarBlock, notMounted);
    FIELD(ItBarBlock, bendingCode);

    SIZE(ItFreeFormSegment);
    FIELD(ItFreeFormSegment, length);
    FIELD(ItFreeFormSegment, angle);
    return 0;
}
