/* The header's version macros are the project's version: three integer
 * constants that the preprocessor can compare, and a string that spells them. */
#include "itunitechnik.h"

#include <stdio.h>
#include <string.h>

#if !(ITUNITECHNIK_VERSION_MAJOR >= 0 && ITUNITECHNIK_VERSION_MINOR >= 0 && ITUNITECHNIK_VERSION_PATCH >= 0)
#error "the version macros are not numbers the preprocessor can compare"
#endif

int main(void)
{
    char spelled[64];
    int failures = 0;
    snprintf(spelled, sizeof spelled, "%d.%d.%d", ITUNITECHNIK_VERSION_MAJOR, ITUNITECHNIK_VERSION_MINOR,
             ITUNITECHNIK_VERSION_PATCH);
    if (ITUNITECHNIK_VERSION_MAJOR != EXPECTED_MAJOR || ITUNITECHNIK_VERSION_MINOR != EXPECTED_MINOR ||
        ITUNITECHNIK_VERSION_PATCH != EXPECTED_PATCH) {
        fprintf(stderr, "version numbers %s, expected %d.%d.%d\n", spelled, EXPECTED_MAJOR, EXPECTED_MINOR,
                EXPECTED_PATCH);
        ++failures;
    }
    if (strcmp(ITUNITECHNIK_VERSION_STRING, EXPECTED_STRING) != 0 ||
        strcmp(ITUNITECHNIK_VERSION_STRING, spelled) != 0) {
        fprintf(stderr, "version string \"%s\", expected \"%s\"\n", ITUNITECHNIK_VERSION_STRING, EXPECTED_STRING);
        ++failures;
    }
    if (failures == 0) {
        printf("header version %s\n", ITUNITECHNIK_VERSION_STRING);
    }
    return failures == 0 ? 0 : 1;
}
