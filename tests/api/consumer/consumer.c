/* A C host: a slab with its outline and a mat, written to the file named by
 * its one argument; the reinforcement summary is given back to the library,
 * whatever its kind. */
#include <itunitechnik.h>

#include <stdio.h>

int main(int argc, char** argv)
{
    const double placement[9] = {0, 0, 0, 6000, 0, 0, 0, 2400, 0};
    const it_char16 elementText[] = {'F', 'l', 'o', 'o', 'r', ' ', 's', 'l', 'a', 'b', 0};
    const it_char16 matName[] = {'Q', '1', '8', '8', 'A', 0};
    /* A closed rectangle: the first point again at the end. */
    const int32_t outline[10] = {0, 0, 6000, 0, 6000, 2400, 0, 2400, 0, 0};
    const int32_t matPosition[3] = {100, 100, 35};
    it_char16 path[512];
    it_char16* summary;
    size_t i = 0;
    if (argc != 2) {
        return 2;
    }
    for (; argv[1][i] != '\0' && i + 1 < sizeof path / sizeof path[0]; ++i) {
        path[i] = (it_char16)(unsigned char)argv[1][i];
    }
    path[i] = 0;

    startOrder(1, 101, placement, 600, elementText, 1.25, true);
    addContour(5, outline);
    if (addSteelmat(matName, 5800, 2200, 1, 0, 1, matPosition) != 1 || endDocument(path) != 1) {
        return 1;
    }
    summary = getFullReinforcementString();
    for (i = 0; summary[i] != 0; ++i) {
    }
    freeFullReinforcementString(summary);
    printf("consumer wrote %s; the summary has %u characters\n", argv[1], (unsigned)i);
    return i > 0 ? 0 : 1;
}
