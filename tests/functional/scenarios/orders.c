/* Orders and the document: one order at 502, two orders at 600 and 501, the
 * same document written twice, an empty document, and a path in a directory
 * that does not exist. */
#include "scenario.h"

int main(int argc, char** argv)
{
    it_char16 path[SCENARIO_TEXT_MAX];
    it_char16 text[SCENARIO_TEXT_MAX];
    const double placement[9] = {0, 0, 0, 1000, 0, 0, 0, 1000, 0};
    if (argc != 2) {
        fprintf(stderr, "usage: orders OUTPUT-DIRECTORY\n");
        return 2;
    }

    /* Nothing started yet: an empty file. */
    scenario_expect(endDocument(scenario_path(argv[1], "empty.txt", path)) == 1, "empty document");

    scenario_expect(startOrder(7, 1, placement, 502, scenario_text("E1", text), 2.5, true) == 1, "startOrder 502");
    scenario_expect(endDocument(scenario_path(argv[1], "one-502.txt", path)) == 1, "one order");

    scenario_expect(startOrder(12, 1, placement, 600, scenario_text("E1", text), 0, true) == 1, "startOrder 600");
    scenario_expect(startOrder(3, 2, placement, 501, scenario_text("E2", text), 0, false) == 1, "startOrder 501");
    scenario_expect(endDocument(scenario_path(argv[1], "two-600-501.txt", path)) == 1, "two orders");
    /* Written again: the document stays as it is. */
    scenario_expect(endDocument(scenario_path(argv[1], "two-again.txt", path)) == 1, "again");

    /* A missing directory: nothing is created, the result is 1 all the same. */
    scenario_expect(endDocument(scenario_path(argv[1], "missing/file.txt", path)) == 1, "missing directory");
    return 0;
}
