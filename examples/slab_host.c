/* An example host: what a design application does to hand one slab to a
 * precast plant. It uses only the public header. */
#include "itunitechnik.h"

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

    /* A new document with one order of format version 600. */
    startOrder(1, 101, placement, 600, text16("Floor slab FS-101", elementText), 1.25, true);

    if (endDocument(text16(file, path)) != 1) {
        fprintf(stderr, "slab_host: the document could not be written\n");
        return 1;
    }
    printf("slab_host: wrote %s\n", file);
    return 0;
}
