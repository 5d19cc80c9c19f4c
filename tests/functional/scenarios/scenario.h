/* Shared by the scenario programs: they use nothing but the public header.
 * Each writes its documents into the directory named by its one argument. */
#ifndef SCENARIO_H
#define SCENARIO_H

#include "itunitechnik.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define SCENARIO_TEXT_MAX 1024

/* An ASCII text as the library's 16-bit text, in a caller's buffer. */
static const it_char16* scenario_text(const char* ascii, it_char16* buffer)
{
    size_t i = 0;
    for (; ascii[i] != '\0' && i + 1 < SCENARIO_TEXT_MAX; ++i) {
        buffer[i] = (it_char16)(unsigned char)ascii[i];
    }
    buffer[i] = 0;
    return buffer;
}

/* The path of `name` in the output directory, as 16-bit text. */
static const it_char16* scenario_path(const char* directory, const char* name, it_char16* buffer)
{
    char joined[SCENARIO_TEXT_MAX];
    snprintf(joined, sizeof joined, "%s/%s", directory, name);
    return scenario_text(joined, buffer);
}

static void scenario_expect(int condition, const char* what)
{
    if (!condition) {
        fprintf(stderr, "scenario failed: %s\n", what);
        exit(1);
    }
}

#endif
