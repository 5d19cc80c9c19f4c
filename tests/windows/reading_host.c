/* A Windows host of the reading library: it reads a golden file through
 * itunitechnik_reading.dll and finds in its JSON what the file holds, as a
 * person reads it from the file's columns. It uses only the public header. */
#include "itunitechnik_reading.h"

#include <stdio.h>
#include <string.h>

static int failures = 0;

static void expect(int condition, const char* what)
{
    if (!condition) {
        printf("FAILED: %s\n", what);
        ++failures;
    } else {
        printf("ok: %s\n", what);
    }
}

int main(int argc, char** argv)
{
    ItrResult* result;
    const char* json;
    if (argc != 2) {
        fprintf(stderr, "usage: reading_host GOLDEN-FILE\n");
        return 2;
    }
    /* reinforced-600.txt: its first loose bar line reads
     * "001 000 1 BSt 500 S  05800 012 00000 +00500 +00600 +00030 +000", a
     * set of 5800 bars of 12 mm, 30 apart, from (500, 600). */
    result = itrReadFile(argv[1], ITR_ALL);
    json = itrJson(result);
    expect(itrOk(result) == 1, "the file reads to its end");
    expect(strstr(json, "\"count\":5800,\"diameter\":12,\"length\":0,\"pitch\":30,\"x\":500,\"y\":600") != NULL,
           "the first bar set by its meanings");
    expect(strstr(json, "\"grade\":\"BSt 500 S\"") != NULL, "the first set's grade");
    expect(strstr(json, "\"bom\":{\"elements\":[") != NULL, "the bill of materials");
    expect(strstr(json, "\"document\":{\"orders\":[") != NULL, "the records");
    itrFree(result);

    result = itrReadFile("no such file.uni", ITR_ALL);
    expect(itrOk(result) == 0, "a missing file does not read");
    expect(strstr(itrJson(result), "\"line\":0,\"column\":0") != NULL, "a missing file has no place");
    itrFree(result);

    result = itrReadBytes("HEADER__\r\n60", 12, ITR_PLANT);
    expect(itrOk(result) == 0, "a file cut off does not read");
    expect(strstr(itrJson(result), "\"line\":2") != NULL, "the cut-off stands on line 2");
    itrFree(result);

    expect(strstr(itrPlantMeanings(), "\"member\":\"firstSize\",\"name\":\"count\"") != NULL, "the table of meanings");
    printf("%d failed\n", failures);
    return failures == 0 ? 0 : 1;
}
