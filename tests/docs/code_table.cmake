# The table of codes of a page names every code the tool defines, by its id and
# its name, in the tool's order, and no other: its rows begin
#   | UT101 | text-cut | ...
# and `REFERENCE codes` prints "UT101 text-cut", one line each.
#   cmake -DREFERENCE=... -DPAGE=docs/check.md -P code_table.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND "${REFERENCE}" codes OUTPUT_VARIABLE defined RESULT_VARIABLE rc)
if(NOT rc EQUAL 0 OR defined STREQUAL "")
    message(FATAL_ERROR "${REFERENCE} codes failed (${rc})")
endif()

file(READ "${PAGE}" page)
string(REGEX MATCHALL "\n\\| UT[0-9]+ \\| [a-z-]+ \\|" rows "${page}")
set(documented "")
foreach(row IN LISTS rows)
    string(REGEX REPLACE "^\n\\| (UT[0-9]+) \\| ([a-z-]+) \\|$" "\\1 \\2\n" line "${row}")
    string(APPEND documented "${line}")
endforeach()

if(NOT documented STREQUAL defined)
    message(FATAL_ERROR "${PAGE}: the table of codes names\n${documented}\nthe tool defines\n${defined}")
endif()
message(STATUS "${PAGE} names every code the tool defines")
