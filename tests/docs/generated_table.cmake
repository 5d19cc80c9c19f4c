# A table of a page that a program writes: the lines between
#   <!-- begin WHAT ... -->  and  <!-- end WHAT -->
# of PAGE must be what `REFERENCE WHAT` prints. With UPDATE=ON the page is
# written with the program's table instead.
#   cmake -DREFERENCE=... -DWHAT=calls-table -DPAGE=docs/build.md [-DUPDATE=ON] -P generated_table.cmake
cmake_minimum_required(VERSION 3.25)
execute_process(COMMAND "${REFERENCE}" "${WHAT}" OUTPUT_VARIABLE table RESULT_VARIABLE rc)
if(NOT rc EQUAL 0 OR table STREQUAL "")
    message(FATAL_ERROR "${REFERENCE} ${WHAT} failed (${rc})")
endif()

file(READ "${PAGE}" page)
string(FIND "${page}" "<!-- begin ${WHAT}" begin)
string(FIND "${page}" "<!-- end ${WHAT} -->" end)
if(begin EQUAL -1 OR end EQUAL -1 OR end LESS begin)
    message(FATAL_ERROR "${PAGE} has no <!-- begin ${WHAT} ... --> and <!-- end ${WHAT} --> around its table")
endif()
# The table starts on the line after the begin marker.
string(SUBSTRING "${page}" ${begin} -1 from_begin)
string(FIND "${from_begin}" "\n" line_end)
math(EXPR start "${begin} + ${line_end} + 1")
math(EXPR length "${end} - ${start}")
string(SUBSTRING "${page}" ${start} ${length} written)

if(written STREQUAL table)
    message(STATUS "${PAGE}: the ${WHAT} is what ${WHAT} prints")
    return()
endif()
if(UPDATE)
    string(SUBSTRING "${page}" 0 ${start} head)
    string(SUBSTRING "${page}" ${end} -1 tail)
    file(WRITE "${PAGE}" "${head}${table}${tail}")
    message(STATUS "${PAGE}: wrote the ${WHAT}")
    return()
endif()
message(FATAL_ERROR "${PAGE}: the ${WHAT} differs from what the code defines. The page has:\n${written}\n"
                    "the code gives:\n${table}\n"
                    "`cmake --build <build> --target doc_tables` writes it into the page.")
